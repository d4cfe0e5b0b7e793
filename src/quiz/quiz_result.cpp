// SPDX-License-Identifier: MIT
#include "quiz/quiz_result.h"

#include "quiz/quiz_session.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <cmath>

namespace {

int RoundHalfUp(double value)
{
    return int(std::floor(value + 0.5));
}

}

QuizResultRow resultRow(const CQuizSession &session, const CTexts &texts, int position)
{
    const QuizQuestion question = session.questionAt(position);
    QuizResultRow row;
    row.question = question.entry.GetText(question.questionColumn);
    row.answer = question.entry.GetText(question.AnswerColumn());

    const QuizWordRecord &record = session.record(position);
    if (record.answers.isEmpty()) {
        row.share = texts.Get(Text::NoAnswers);
    } else {
        row.percent = RoundHalfUp(session.percentRight(position));
        row.share = texts.Fill(Text::AnswersOfTotal,
            {QString::number(record.rightCount), QString::number(record.answers.size()),
                QString::number(row.percent)});
    }
    QStringList wrong = session.wrongAnswers(position);
    for (QString &answer : wrong) {
        answer = texts.Fill(Text::Quoted, {answer});
    }
    row.wrongAnswers = wrong.join(texts.Get(Text::QuotedSeparator));
    return row;
}

QString resultSummary(const CQuizSession &session, const CTexts &texts)
{
    return texts.Fill(Text::ResultSummary,
        {QString::number(session.wordCount()), QString::number(session.totalRight() + session.totalWrong()),
            QString::number(session.totalRight()), QString::number(RoundHalfUp(session.totalPercent()))});
}
