// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_launch.h"

#include "quiz/quiz_host.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "quiz/ui/standard_quiz.h"
#include "settings/quiz_settings.h"

CQuizLaunch::CQuizLaunch(CWin32Doc &document, QuizWindowServices services, const QuizSettings &settings,
    CRandom &random, IQuizHost &host, QWidget &mainWindow)
    : QObject(&mainWindow), m_mainWindow(mainWindow), m_document(document), m_services(services),
      m_settings(settings), m_random(random), m_host(host)
{
}

CQuizLaunch::~CQuizLaunch() = default;

void CQuizLaunch::startQuiz()
{
    if (isRunning()) {
        return;
    }
    const std::vector<int> selected = m_host.SelectedEntries();
    m_session = std::make_unique<CQuizSession>(m_document, m_settings, m_random, selected);
    if (m_session->roundSize() == 0) {
        m_session.reset();
        return;
    }
    m_dialog = std::make_unique<CStandardQuiz>(m_services, *m_session, m_settings);
    connect(m_dialog.get(), &QDialog::finished, this, &CQuizLaunch::quizClosed);
    m_dialog->move(m_mainWindow.frameGeometry().center() - m_dialog->rect().center());
    m_host.ShowMainWindow(false);
    m_dialog->show();
    m_dialog->activateWindow();
}

void CQuizLaunch::quizClosed()
{
    m_host.ShowMainWindow(true);
    // The window is in the middle of closing itself.
    m_dialog.release()->deleteLater();
    if (!m_settings.showResult || m_session->totalRight() + m_session->totalWrong() == 0) {
        finish();
        return;
    }
    auto *result =
        new CQuizResultDialog(*m_session, m_services.texts, CQuizResultDialog::Mode::AfterQuiz, &m_mainWindow);
    result->setAttribute(Qt::WA_DeleteOnClose);
    connect(result, &QDialog::finished, this, &CQuizLaunch::finish);
    result->open();
}

void CQuizLaunch::finish()
{
    if (m_settings.selectedTestedWordsAfterQuiz) {
        m_host.SelectEntries(m_session->candidates());
    }
    m_session.reset();
}
