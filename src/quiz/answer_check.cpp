// SPDX-License-Identifier: MIT
#include "quiz/answer_check.h"

#include "model/term_syntax.h"
#include "platform/letters.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <algorithm>

QString normalizeForCheck(const QString &text, const CheckingOptions &options)
{
    const QString kept = options.characterCheck == CharacterCheck::AllCharacters
        ? text
        : KeepLetters(text, options.characterCheck == CharacterCheck::LettersAndSpaces);
    return options.ignoreCase ? ToLowerCase(kept) : kept;
}

QStringList acceptedForms(const QString &expected)
{
    if (!expected.contains(u'[')) {
        return {expected};
    }
    QString withoutBrackets = expected;
    withoutBrackets.removeIf([](QChar unit) { return unit == u'[' || unit == u']'; });
    return {StripComments(expected), withoutBrackets, expected};
}

QStringList acceptedTexts(const CWordEntry &entry, int answerColumn)
{
    QStringList texts;
    const int last = entry.AlternativeCount(answerColumn);
    for (int k = 0; k <= last; ++k) {
        texts += acceptedForms(entry.GetAlternative(answerColumn, k, false));
    }
    if (last > 0) {
        texts += acceptedForms(entry.GetText(answerColumn));
    }
    return texts;
}

bool answersMatch(const QString &typed, const QString &expected, const CheckingOptions &options)
{
    if (typed == expected) {
        return true;
    }
    const QString answer = normalizeForCheck(typed, options);
    return std::ranges::any_of(acceptedForms(expected),
        [&](const QString &form) { return answer == normalizeForCheck(form, options); });
}

AnswerVerdict checkAnswer(
    const CWordEntry &entry, int answerColumn, const QString &typed, const CheckingOptions &options)
{
    if (typed.isEmpty()) {
        return AnswerVerdict::Wrong;
    }
    if (answersMatch(typed, entry.GetText(answerColumn), options)) {
        return AnswerVerdict::Right;
    }
    const int last = entry.AlternativeCount(answerColumn);
    for (int k = 0; k <= last; ++k) {
        if (answersMatch(typed, entry.GetAlternative(answerColumn, k, false), options)) {
            return last == 0 ? AnswerVerdict::Right : AnswerVerdict::RightOneOfSeveral;
        }
    }
    return AnswerVerdict::Wrong;
}

QString expandEntryVariables(const QString &questionTemplate, const QuizQuestion &question)
{
    const int answerColumn = question.answerColumn();
    return FillInOrder(questionTemplate,
        {{QStringLiteral("%word"), question.entry.GetText(question.questionColumn)},
            {QStringLiteral("%answer"), question.entry.GetText(answerColumn)},
            {QStringLiteral("%note"), question.entry.GetNote()},
            {QStringLiteral("%from"), question.languages[size_t(question.questionColumn)]},
            {QStringLiteral("%to"), question.languages[size_t(answerColumn)]}},
        FilledFor::Screen);
}

std::optional<FeedbackText> feedbackText(const CTexts &texts, const QuizSettings &settings,
    AnswerVerdict verdict, const QuizQuestion &question, const QString &typed)
{
    int number = 0;
    if (verdict == AnswerVerdict::RightOneOfSeveral && settings.showAnswerIfOneCorrect) {
        number = Text::AllRightAnswers;
    } else if (verdict == AnswerVerdict::Wrong && settings.showAnswer) {
        number = typed.isEmpty() ? Text::AnswerAfterSkip : Text::AnswerAfterWrong;
    } else {
        return std::nullopt;
    }
    return FeedbackText{number,
        FillPlaceholders(expandEntryVariables(texts.Get(number), question),
            {{QStringLiteral("%useranswer"), typed}}, FilledFor::Screen)};
}
