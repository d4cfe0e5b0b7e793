// SPDX-License-Identifier: MIT
#include "shell/ui/ordelin_app.h"

#include "resources/text_numbers.h"
#include "shell/command_line.h"
#include "shell/ui/main_frame.h"

#include <QDateTime>
#include <QIcon>
#include <QProcess>

#include <cstdio>

namespace {

/// How long after a change the copy for recovery is written, in milliseconds.
constexpr int RecoveryDelay = 3000;

}

COrdelinApp::COrdelinApp(int &argc, char **argv)
    : QApplication(argc, argv), m_qtTexts(m_texts), m_store(CIniStore::UserPath(), CAppSettings::RootPath()),
      m_settings(m_store, m_texts), m_random(quint32(QDateTime::currentMSecsSinceEpoch())),
      m_document({m_texts, m_settings.editor, m_prompt, [] { return QDate::currentDate(); },
          [](const QString &program, const QStringList &arguments) {
              return QProcess::startDetached(program, arguments);
          }}),
      m_recent(m_store, CAppSettings::RootPath()), m_files(m_document, m_texts, m_prompt, m_chooser, m_recent),
      m_recovery(m_document, CRecovery::UserFolder(), RecoveryDelay)
{
    Q_INIT_RESOURCE(pictures);
    setOrganizationName(QStringLiteral("Ornbury Workshops"));
    setApplicationName(QStringLiteral("Ordelin"));
    setApplicationVersion(QStringLiteral(ORDELIN_VERSION));
    setApplicationDisplayName(m_texts.Get(Text::ApplicationTitle));
    setWindowIcon(QIcon(QStringLiteral(":/pictures/ordelin.svg")));
    setQuitOnLastWindowClosed(false); // A quiz hides the main window.
    installTranslator(&m_qtTexts);
}

COrdelinApp::~COrdelinApp() = default;

int COrdelinApp::InitInstance()
{
    const CommandLine commandLine = parseCommandLine(arguments().mid(1));
    if (commandLine.error != 0) {
        const QString message =
            m_texts.Fill(commandLine.error, {commandLine.wrongArgument}) + m_texts.Get(Text::Usage);
        std::fputs(message.toLocal8Bit().constData(), stderr);
        return 2;
    }
    m_settings.Exchange(true);
    m_document.ApplyUndoSize();
    m_frame = std::make_unique<CMainFrame>(FrameServices{
        m_document, m_files, m_recent, m_texts, m_settings.editor, m_settings.quiz, m_prompt, m_random});
    connect(m_frame.get(), &CMainFrame::Closed, this, &QCoreApplication::quit);
    m_document.OnNewDocument();
    if (!commandLine.file.isEmpty()) {
        m_files.OpenFile(commandLine.file);
    }
    m_frame->show();
    m_recovery.Offer(m_texts, m_prompt);
    return 0;
}

void COrdelinApp::ExitInstance()
{
    m_recovery.Finish();
    m_settings.misc.openOnClosing = !m_document.Path().isEmpty();
    m_settings.Exchange(false);
}
