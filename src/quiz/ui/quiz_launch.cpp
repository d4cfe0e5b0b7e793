// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_launch.h"

#include "document/win32_doc.h"
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/spoken_text.h"
#include "platform/ui/wait_cursor.h"
#include "platform/user_prompt.h"
#include "quiz/duplicate_question.h"
#include "quiz/quiz_host.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/quiz_result_dialog.h"
#include "resources/texts.h"

#include <QScreen>

CQuizLaunch::CQuizLaunch(QuizLaunchServices services, QWidget &mainWindow)
    : QObject(&mainWindow), m_services(std::move(services)), m_mainWindow(mainWindow)
{
    m_services.windows.showHelp = [&host = m_services.host] { host.ShowHelp(QStringLiteral("quizzes")); };
}

CQuizLaunch::~CQuizLaunch() = default;

void CQuizLaunch::startQuiz(QuizKind kind)
{
    CWin32Doc &document = m_services.document;
    if (isRunning() || !hasWindow(kind)) {
        return;
    }
    const QuizWindowServices &windows = m_services.windows;
    if (document.List().Count() < quizKindRow(kind).minimumEntries
        || !mayStartQuiz(document.List(), m_services.editorSettings, windows.texts, windows.prompt)) {
        return;
    }
    m_kind = kind;
    m_session = makeSession();
    if (m_session->wordCount() == 0 && m_session->unanswerableCount() > 0) {
        const QString &language = document.List().GetLanguage(m_session->answerColumn());
        windows.prompt.Tell(windows.texts.Prompt(Text::NothingToAnswer, {language}), PromptIcon::Information);
    }
    runSession();
}

void CQuizLaunch::runSession()
{
    const QuizWindowServices &windows = m_services.windows;
    const bool asks = m_session->roundSize() > 0 && m_session->baseRound() <= m_services.settings.quizNumber;
    if (asks) {
        m_dialog = m_services.makers[size_t(m_kind)](windows,
            {m_session, m_services.settings, m_services.kindSettings, windows.texts, m_services.random,
                windows.clock});
    }
    if (m_dialog != nullptr) {
        openWindow();
    } else {
        m_session.reset();
    }
}

std::shared_ptr<CQuizSession> CQuizLaunch::makeSession() const
{
    const CWaitCursor wait;
    return std::make_shared<CQuizSession>(m_services.document, m_services.settings, m_services.random,
        m_services.host.SelectedEntries(), quizKindRow(m_kind).answers);
}

void CQuizLaunch::openWindow()
{
    const CWaitCursor wait;
    connect(m_dialog.get(), &QDialog::finished, this, &CQuizLaunch::quizClosed);
    const QRect available = m_mainWindow.screen()->availableGeometry();
    const QSize frame = m_mainWindow.frameGeometry().size() - m_mainWindow.size();
    const QSize size =
        openingSize(m_services.windowSizes, m_kind, m_dialog->sizeHint(), available.size() - frame);
    QRect place({}, size + frame);
    place.moveCenter(m_mainWindow.frameGeometry().center());
    place.moveRight(std::min(place.right(), available.right()));
    place.moveBottom(std::min(place.bottom(), available.bottom()));
    place.moveTopLeft({std::max(place.left(), available.left()), std::max(place.top(), available.top())});
    m_dialog->resize(size);
    m_dialog->move(place.topLeft());
    m_services.host.ShowMainWindow(false);
    m_dialog->show();
    m_dialog->activateWindow();
}

void CQuizLaunch::quizClosed()
{
    // Not that of a window that fills the screen.
    const QRect normal = m_dialog->normalGeometry();
    rememberSize(m_services.windowSizes, m_kind, normal.isValid() ? normal.size() : m_dialog->size());
    m_services.host.ShowMainWindow(true);
    const QString unspoken = m_dialog->takeUnspokenVerdict();
    // The window is in the middle of closing itself.
    m_dialog.release()->deleteLater();
    if (m_services.settings.showResult && m_session->totalRight() + m_session->totalWrong() > 0) {
        showResult(unspoken);
    } else {
        finish();
        say(unspoken);
    }
}

void CQuizLaunch::say(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    if (m_spoken == nullptr) {
        m_spoken = new CSpokenText(&m_mainWindow);
    }
    m_spoken->Say(text);
}

void CQuizLaunch::showResult(const QString &unspoken)
{
    auto *result = new CQuizResultDialog(m_session, m_services.windows, ResultMode::AfterQuiz, &m_mainWindow);
    result->setAttribute(Qt::WA_DeleteOnClose);
    connect(result, &QDialog::finished, this, [this, result] { resultClosed(*result); });
    (new CInputGuardFilter(m_services.windows.clock, result))->WindowOpens(*result);
    result->open();
    if (!unspoken.isEmpty()) {
        (new CSpokenText(result))->Say(unspoken);
    }
}

void CQuizLaunch::resultClosed(const CQuizResultDialog &result)
{
    if (!result.asksMistakesAgain()) {
        finish();
        return;
    }
    m_session = m_session->overMistakes();
    runSession();
}

void CQuizLaunch::finish()
{
    const CWaitCursor wait;
    if (const auto entries = m_session->entriesToSelect()) {
        m_services.host.SelectEntries(*entries);
    }
    m_services.host.FocusList();
    m_session.reset();
}
