// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_session.h"
#include "quiz/ui/quiz_dialog.h"

#include <QObject>

#include <memory>

class IQuizHost;

/// Runs quizzes one after the other: builds the session, shows its window in place of the main window, and the
/// result afterwards. Nothing handed in is owned.
class CQuizLaunch : public QObject
{
    Q_OBJECT

public:
    CQuizLaunch(CWin32Doc &document, QuizWindowServices services, const QuizSettings &settings, CRandom &random,
        IQuizHost &host, QWidget &mainWindow);
    ~CQuizLaunch() override;

    /// Starts a standard quiz; does nothing while a quiz runs or when there is no word to ask.
    void startQuiz();
    bool isRunning() const { return m_session != nullptr; }

private:
    void quizClosed();
    void finish();

    QWidget &m_mainWindow;
    CWin32Doc &m_document;
    QuizWindowServices m_services;
    const QuizSettings &m_settings;
    CRandom &m_random;
    IQuizHost &m_host;
    std::unique_ptr<CQuizSession> m_session;
    std::unique_ptr<CQuizDialog> m_dialog;
};
