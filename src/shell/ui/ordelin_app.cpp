// SPDX-License-Identifier: MIT
#include "shell/ui/ordelin_app.h"

#include "platform/data_folders.h"
#include "platform/opener.h"
#include "platform/ui/program_style.h"
#include "shell/file_association.h"
#include "shell/language_choice.h"
#include "shell/text_numbers.h"
#include "shell/ui/help_window.h"
#include "shell/ui/language_dialog.h"
#include "shell/ui/main_frame.h"
#include "shell/ui/special_character_keys.h"

#include <QDateTime>
#include <QIcon>
#include <QProcess>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>

#include <cstdio>

namespace {

/// How long after a change the copy for recovery is written, in milliseconds.
constexpr int RecoveryDelay = 3000;

/// How long the status bar says that it could not be written, in milliseconds.
constexpr int FailureShown = 20000;

}

COrdelinApp::COrdelinApp(int &argc, char **argv)
    : QApplication(argc, argv), m_qtTexts(m_texts), m_store(CIniStore::UserPath(), CAppSettings::RootPath()),
      m_settings(m_store, m_texts), m_startUp(m_settings, m_texts, [this] { ChooseLanguage(); }),
      m_dataFolders(DataFolders(applicationDirPath())), m_random(quint32(QDateTime::currentMSecsSinceEpoch())),
      m_document({m_texts, m_settings.editor, m_prompt, [] { return QDate::currentDate(); },
          [this](const QString &program, const QStringList &arguments, std::function<void()> failed) {
              StartOpener(program, arguments, *this, std::move(failed));
          },
          CRecovery::UserFolder()}),
      m_recovery(m_document, CRecovery::UserFolder(), RecoveryDelay)
{
    Q_INIT_RESOURCE(pictures);
    setStyle(new CProgramStyle);
    setOrganizationName(QStringLiteral("Ornbury Workshops"));
    setApplicationName(QStringLiteral("Ordelin"));
    setApplicationVersion(QStringLiteral(ORDELIN_VERSION));
    setApplicationDisplayName(m_texts.Get(Text::ApplicationTitle));
    setDesktopFileName(QStringLiteral("workshops.ornbury.ordelin"));
    // The small one is drawn with fewer lines.
    QIcon icon(QStringLiteral(":/pictures/workshops.ornbury.ordelin.svg"));
    icon.addFile(QStringLiteral(":/pictures/workshops.ornbury.ordelin-16.svg"), QSize(16, 16));
    setWindowIcon(icon);
    setQuitOnLastWindowClosed(false); // A quiz hides the main window.
    installTranslator(&m_qtTexts);
    connect(&m_exitSignals, &CExitSignals::ExitRequested, this, [this] {
        m_end.Signalled();
        ExitFromOutside();
    });
    connect(&m_settingsChanges, &CSettingsChanges::Changed, this, [this](SettingsSection section) {
        if (section == SettingsSection::Editor) {
            m_document.ApplyUndoSize();
        } else if (section == SettingsSection::EasyKey) {
            m_specialCharacters->Renew();
        }
    });
    connect(this, &QGuiApplication::commitDataRequest, this, &COrdelinApp::SessionEnds, Qt::DirectConnection);
}

COrdelinApp::~COrdelinApp() = default;

int COrdelinApp::Run(const QString &file, bool newList)
{
    if (!InitInstance(file, newList)) {
        return 1; // What the settings say of the last run stays.
    }
    // The end may have been asked for while a question of the start was open.
    const int result = m_end.IsFromOutside() ? 0 : exec();
    ExitInstance();
    return result;
}

bool COrdelinApp::InitInstance(const QString &file, bool newList)
{
    m_startUp.Prepare();
    m_document.ApplyUndoSize();
    m_recent = std::make_unique<CRecentFiles>(m_store, CAppSettings::RootPath());
    m_files =
        std::make_unique<CFileCommands>(m_document, m_texts, m_prompt, m_chooser, m_formatDialogs, *m_recent);
    MakeMainWindow();
    const QString reopened = newList ? QString() : m_startUp.FileToReopen(file, *m_recent);
    m_document.OnNewDocument();
    if (!file.isEmpty() && !m_files->OpenFile(file)) {
        return false;
    }
    m_frame->ShowAsBefore();
    if (!reopened.isEmpty()) {
        m_files->OpenFile(reopened);
    }
    // From the event loop, when the window stands where the questions are to be seen.
    QTimer::singleShot(0, this, &COrdelinApp::Welcome);
    return true;
}

void COrdelinApp::MakeMainWindow()
{
    m_specialCharacters = std::make_unique<CSpecialCharacterKeys>(m_settings.easykey, m_texts, nullptr);
    m_frame = std::make_unique<CMainFrame>(FrameServices{.document = m_document,
        .files = *m_files,
        .recent = *m_recent,
        .texts = m_texts,
        .settings = m_settings,
        .settingsChanges = m_settingsChanges,
        .prompt = m_prompt,
        .chooser = m_chooser,
        .formatDialogs = m_formatDialogs,
        .sounds = m_sounds,
        .random = m_random,
        .store = m_store,
        .root = CAppSettings::RootPath(),
        .specialCharacters = *m_specialCharacters,
        .openHelp = [this](const QString &section) { OpenHelp(section); },
        .today = [] { return QDate::currentDate(); },
        .resetSettings = [this] { return m_settings.ResetToFactory(m_prompt); },
        .chooseLanguage = [this] { ChooseLanguage(); },
        .associateFiles = [this] { AssociateFiles(); },
        .dataFolders = m_dataFolders,
        .pageFolder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation),
        .openFile =
            [this](const QString &file, std::function<void()> failed) {
                StartOpener(QStringLiteral("xdg-open"), {file}, *this, std::move(failed));
            }});
    connect(&m_recovery, &CRecovery::CopyFailed, m_frame.get(),
        [this] { m_frame->statusBar()->showMessage(m_texts.Get(Text::CopyFailed), FailureShown); });
    m_recovery.SetListToKeep([this] { return m_frame->ListWithTyped(); });
    connect(m_frame.get(), &CMainFrame::TypedChanged, this, [this] {
        m_end.UserTyped();
        m_recovery.KeepSoon();
    });
    connect(m_frame.get(), &CMainFrame::Closed, this, [this] {
        m_end.UserCloses();
        quit();
    });
}

void COrdelinApp::ChooseLanguage()
{
    CLanguageChoice choice(FindLanguages(m_texts, m_dataFolders), m_startUp.ModulePath(), m_settings.isFirstRun,
        LanguageAbbreviation(QLocale::system()));
    CLanguageDialog dialog(choice, activeWindow());
    if (dialog.exec() == QDialog::Accepted) {
        choice.Accept(m_settings.misc, m_prompt);
    }
}

void COrdelinApp::AssociateFiles()
{
    const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    AssociateGlossaryFiles(applicationFilePath(), userData, m_texts, m_prompt,
        [](const QString &program, const QStringList &arguments) {
            return QProcess::execute(program, arguments) == 0;
        });
}

void COrdelinApp::OpenHelp(const QString &section)
{
    if (!m_help) {
        m_help = std::make_unique<CHelpWindow>(m_texts, m_dataFolders, m_prompt, [this](const QString &file) {
            StartOpener(QStringLiteral("xdg-open"), {file}, *this,
                [this] { m_prompt.Tell(m_texts.Prompt(Text::CannotOpenHelp), PromptIcon::Warning); });
        });
    }
    m_help->ShowSection(section);
}

void COrdelinApp::Welcome()
{
    m_recovery.Offer(m_texts, m_prompt);
    if (m_settings.isFirstRun
        && m_prompt.Confirm(
            m_texts.Prompt(Text::FirstRun), PromptIcon::Information, PromptButtons::YesNo, PromptAnswer::Yes)) {
        OpenHelp(QStringLiteral("quick"));
    }
    m_end.StartIsOver();
}

void COrdelinApp::SaveSettings()
{
    if (!m_end.SavesSettings(m_settings.isFirstRun)) {
        return;
    }
    m_settings.misc.openOnClosing = !m_document.Path().isEmpty();
    m_settings.Exchange(false);
}

void COrdelinApp::ExitInstance()
{
    if (m_end.KeepsCopy(m_document.ChangeCounter())) {
        m_recovery.Keep();
    } else {
        m_recovery.Finish();
    }
    m_specialCharacters->Close();
    SaveSettings();
    if (m_store.Flush()) {
        return;
    }
    const PromptText message = m_texts.Prompt(Text::SettingsNotSaved, {m_store.Path()});
    if (m_end.IsFromOutside()) {
        std::fputs((message.text + u'\n').toLocal8Bit().constData(), stderr); // Nobody may be there to answer.
    } else {
        m_prompt.Tell(message, PromptIcon::Warning);
    }
}

bool COrdelinApp::event(QEvent *event)
{
    if (event->type() == QEvent::Quit && m_end.Quits()) {
        ExitFromOutside();
        return true;
    }
    return QApplication::event(event);
}

void COrdelinApp::ExitFromOutside()
{
    if (m_frame) {
        m_frame->FinishQuietly();
        if (m_frame->isVisible()) {
            m_frame->SavePlace();
        }
    }
    exit(0); // Ends the loop of an open question as well.
}

void COrdelinApp::SessionEnds(QSessionManager &manager)
{
    if (!m_frame) {
        return;
    }
    m_frame->FinishQuietly();
    if (manager.allowsInteraction()) {
        const bool mayEnd = m_files->MayDiscard();
        m_end.SessionAsks(mayEnd ? std::optional(m_document.ChangeCounter()) : std::nullopt);
        if (!mayEnd) {
            manager.cancel();
        }
        manager.release();
    }
    m_end.SessionEnds();
    if (m_end.KeepsCopy(m_document.ChangeCounter())) {
        m_recovery.Keep();
    }
    m_frame->SavePlace();
    SaveSettings();
}
