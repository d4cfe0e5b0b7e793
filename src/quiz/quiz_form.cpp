// SPDX-License-Identifier: MIT
#include "quiz/quiz_form.h"

#include "quiz/answer_sound.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

QString CQuizForm::sound(AnswerVerdict verdict, const QStringList &dataFolders) const
{
    return answerSound(verdict, settings(), dataFolders);
}

QString CQuizForm::roundText() const
{
    const QString base = QString::number(session()->baseRound());
    const QString rounds = QString::number(settings().quizNumber);
    const QString requiz = QString::number(session()->requizRound());
    if (session()->requizRound() == 0) {
        return texts().Fill(Text::RoundLine, {base, rounds});
    }
    if (!settings().requizMax) {
        return texts().Fill(Text::RequizLine, {base, rounds, requiz});
    }
    return texts().Fill(
        Text::RequizLineWithMaximum, {base, rounds, requiz, QString::number(settings().requizNumber)});
}

QuizProgress CQuizForm::rightProgress() const
{
    const int right = session()->totalRight();
    const int total = right + session()->totalWrong();
    return {texts().Fill(Text::RightLine, {QString::number(right), QString::number(total)}), right, total};
}
