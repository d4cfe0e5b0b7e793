// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/console.h"
#include "quiz/standard_quiz_form.h"

class CTexts;

/// Asks the words of a standard quiz on a console, one line for each answer. Lines that begin with a colon are
/// commands. Nothing is owned.
class CTerminalQuiz
{
public:
    CTerminalQuiz(CStandardQuizForm &form, CConsole &console, const CTexts &texts);

    /// Until the quiz is over, the user ends it or the input does.
    void Run();

private:
    using Next = CStandardQuizForm::Next;

    void Ask();
    /// Nothing when the quiz is to end.
    std::optional<Next> Take(const QString &line);
    std::optional<Next> Obey(QStringView command);
    Next Answer(const QString &line);
    Next AcceptAnswer();
    void PrintLines(const QString &text);

    CStandardQuizForm &m_form;
    CConsole &m_console;
    const CTexts &m_texts;
};
