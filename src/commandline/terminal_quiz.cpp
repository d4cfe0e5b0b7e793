// SPDX-License-Identifier: MIT
#include "commandline/terminal_quiz.h"

#include "commandline/text_numbers.h"
#include "platform/plain_text.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

CTerminalQuiz::CTerminalQuiz(CStandardQuizForm &form, CConsole &console, const CTexts &texts)
    : m_form(form), m_console(console), m_texts(texts)
{
}

void CTerminalQuiz::PrintLines(const QString &text)
{
    m_console.Print(text.trimmed() + u'\n');
}

void CTerminalQuiz::Run()
{
    PrintLines(m_texts.Get(Text::TerminalCommands));
    for (auto next = Next::SameWord; next != Next::Over;) {
        Ask();
        const std::optional<QString> line = m_console.ReadLine();
        if (!line) {
            m_console.Print(QStringLiteral("\n"));
            return;
        }
        const std::optional<Next> step = Take(*line);
        if (!step) {
            return;
        }
        next = *step;
    }
}

void CTerminalQuiz::Ask()
{
    m_console.Print(QStringLiteral("\n%1 %2 %3\n")
                        .arg(m_form.roundText(), m_form.wordProgress()->text, m_form.rightProgress().text));
    PrintLines(ShownShort(m_form.question()));
    if (const QString answer = m_form.prefilledAnswer(); !answer.isEmpty()) {
        m_console.Print(QStringLiteral("  (%1)\n").arg(ShownInLine(answer)));
    }
    m_console.Print(QStringLiteral("> "));
}

std::optional<CTerminalQuiz::Next> CTerminalQuiz::Take(const QString &line)
{
    return line.startsWith(u':') ? Obey(QStringView(line).sliced(1).trimmed()) : Answer(line);
}

std::optional<CTerminalQuiz::Next> CTerminalQuiz::Obey(QStringView command)
{
    if (command == u"q") {
        return std::nullopt;
    }
    if (command == u"s") {
        return m_form.skip();
    }
    if (command == u"r") {
        return AcceptAnswer();
    }
    PrintLines(m_texts.Get(Text::TerminalCommands));
    return Next::SameWord;
}

CTerminalQuiz::Next CTerminalQuiz::Answer(const QString &line)
{
    const auto outcome = m_form.answer(line);
    if (outcome.feedback) {
        PrintLines(ShownShort(outcome.feedback->text));
    } else {
        PrintLines(
            m_texts.Get(outcome.verdict == AnswerVerdict::Wrong ? Text::AnswerIsWrong : Text::AnswerIsRight));
    }
    return m_form.advance(outcome.verdict);
}

CTerminalQuiz::Next CTerminalQuiz::AcceptAnswer()
{
    const AcceptOffer offer = m_form.acceptOffer();
    if (offer.kind == AcceptOffer::Kind::Nothing) {
        PrintLines(m_texts.Get(Text::TerminalNothingToAccept));
        return Next::SameWord;
    }
    const Next next = m_form.takeAcceptOffer();
    const int text = offer.kind == AcceptOffer::Kind::Accept ? Text::TerminalAccepted : Text::TerminalTakenBack;
    PrintLines(m_texts.Fill(text, {ShownInLine(offer.word), ShownInLine(offer.answer)}, FilledFor::Storage));
    return next;
}
