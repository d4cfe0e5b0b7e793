// SPDX-License-Identifier: MIT
#include "shell/ui/ordelin_app.h"

#include "resources/text_numbers.h"
#include "shell/command_line.h"
#include "shell/ui/main_frame.h"

#include <QDateTime>
#include <QIcon>

#include <cstdio>

COrdelinApp::COrdelinApp(int &argc, char **argv)
    : QApplication(argc, argv), m_qtTexts(m_texts), m_random(quint32(QDateTime::currentMSecsSinceEpoch())),
      m_document({m_texts, m_editorSettings, m_prompt, [] { return QDate::currentDate(); }}),
      m_files(m_document, m_texts, m_prompt, m_chooser)
{
    Q_INIT_RESOURCE(pictures);
    setOrganizationName(QStringLiteral("Ornbury Workshops"));
    setApplicationName(QStringLiteral("Ordelin"));
    setApplicationVersion(QStringLiteral(ORDELIN_VERSION));
    setApplicationDisplayName(m_texts.Get(Text::ApplicationTitle));
    setWindowIcon(QIcon(QStringLiteral(":/pictures/ordelin.svg")));
    setQuitOnLastWindowClosed(false); // A quiz hides the main window.
    installTranslator(&m_qtTexts);
    // The first quizzes ask for every word, also for those that are flagged as learnt.
    m_quizSettings.includeFlaggedWords = 1;
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
    m_frame = std::make_unique<CMainFrame>(
        FrameServices{m_document, m_files, m_texts, m_editorSettings, m_quizSettings, m_prompt, m_random});
    connect(m_frame.get(), &CMainFrame::Closed, this, &QCoreApplication::quit);
    m_document.OnNewDocument();
    if (!commandLine.file.isEmpty()) {
        m_document.OpenDocument(commandLine.file);
    }
    m_frame->show();
    return 0;
}
