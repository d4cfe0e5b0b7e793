// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/quiz_windows.h"

#include <QObject>

#include <memory>

class CQuizResultDialog;
class CSpokenText;
class IQuizHost;
struct EditorSettings;

/// What quizzes are launched with; nothing that is referred to is owned.
struct QuizLaunchServices
{
    CWin32Doc &document;
    const EditorSettings &editorSettings;
    const QuizSettings &settings;
    QuizKindSettings kindSettings;
    /// The sizes of the windows are noted here.
    QuizWindowSettings &windowSizes;
    CRandom &random;
    IQuizHost &host;
    QuizWindowServices windows;
    QuizWindowMakers makers;
};

/// Runs quizzes one after the other: builds the session, shows its window in place of the main window, and the
/// result afterwards.
class CQuizLaunch : public QObject
{
    Q_OBJECT

public:
    CQuizLaunch(QuizLaunchServices services, QWidget &mainWindow);
    ~CQuizLaunch() override;

    bool hasWindow(QuizKind kind) const { return bool(m_services.makers[size_t(kind)]); }
    /// Does nothing while a quiz runs, when the list is too short for the kind, when the user does not want it
    /// with duplicates in the list, when there is no word to ask (which is told where all lack an answer), and
    /// when the user answers a question of the kind so.
    void startQuiz(QuizKind kind);
    /// The user's own font, for the windows of quizzes to come; none for the desktop's.
    void setFont(const std::optional<QFont> &font) { m_services.windows.font = font; }
    bool isRunning() const { return m_session != nullptr; }

private:
    std::shared_ptr<CQuizSession> makeSession() const;
    /// Opens the window of the session, if that has a word to ask.
    void runSession();
    void openWindow();
    void quizClosed();
    /// What was not read out yet is read out there.
    void showResult(const QString &unspoken);
    void resultClosed(const CQuizResultDialog &result);
    void finish();
    /// To assistive technology, in the main window.
    void say(const QString &text);

    QuizLaunchServices m_services;
    QWidget &m_mainWindow;
    QuizKind m_kind = QuizKind::Standard;
    std::shared_ptr<CQuizSession> m_session;
    std::unique_ptr<CQuizDialog> m_dialog;
    CSpokenText *m_spoken = nullptr; // Of the main window, once something was said there.
};
