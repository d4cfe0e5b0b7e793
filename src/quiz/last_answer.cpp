// SPDX-License-Identifier: MIT
#include "quiz/last_answer.h"

#include "platform/plain_text.h"
#include "quiz/difference_text.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

namespace {

QString entryLine(const QuizQuestion &question, const CTexts &texts)
{
    const CWordEntry &entry = question.entry;
    const QString word = ShownShort(entry.GetText(question.questionColumn));
    const QString answer = ShownShort(entry.GetText(question.answerColumn()));
    return entry.GetNote().isEmpty()
        ? texts.Fill(Text::AskedEntry, {word, answer})
        : texts.Fill(Text::AskedEntryWithNote, {word, answer, ShownShort(entry.GetNote())});
}

}

std::optional<LastAnswer> lastAnswer(const CQuizSession &session, const CTexts &texts)
{
    const std::optional<int> position = session.lastAnswered();
    if (!position) {
        return std::nullopt;
    }
    const QString answer = session.record(*position).answers.last();
    LastAnswer last;
    last.isRight = session.judge(*position, answer) != AnswerVerdict::Wrong;
    last.verdict = texts.Get(last.isRight ? Text::AnswerIsRight : Text::AnswerIsWrong);
    if (session.settings().showAnswer) {
        last.entry = entryLine(session.questionAt(*position), texts);
        if (!last.isRight) {
            last.difference = wrongAnswerAsHtml(session, texts, *position, answer);
        }
    }
    return last;
}
