// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_entry.h"
#include "settings/quiz_settings.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class CTexts;

enum class AnswerVerdict {
    Wrong = 0,
    Right = 1,
    RightOneOfSeveral = 2, ///< Right, and the term has further accepted alternatives.
};

struct CheckingOptions
{
    bool ignoreCase = false;
    CharacterCheck characterCheck = CharacterCheck::AllCharacters;
};

/// What a question is about: an entry, the column that is asked (the other is expected), and the names of both
/// languages.
struct QuizQuestion
{
    const CWordEntry &entry;
    int questionColumn = 0;
    std::array<QString, CWordEntry::LanguageCount> languages = {};

    int answerColumn() const { return 1 - questionColumn; }
};

/// `text` reduced to what counts; both sides of a comparison go through it.
QString normalizeForCheck(const QString &text, const CheckingOptions &options);

/// What may be typed for an expected text: it without its comments, without their brackets, and in full.
QStringList acceptedForms(const QString &expected);

/// What may be typed for a term: for its alternatives in their order, then for the whole of it.
QStringList acceptedTexts(const CWordEntry &entry, int answerColumn);

/// Whether a typed text stands for the expected one. Comments of the expected text may be left out, typed
/// without their brackets, or typed in full.
bool answersMatch(const QString &typed, const QString &expected, const CheckingOptions &options);

/// Judges a typed answer against a term: the whole stored term or any alternative is right, an empty answer
/// never.
AnswerVerdict checkAnswer(
    const CWordEntry &entry, int answerColumn, const QString &typed, const CheckingOptions &options);

/// Replaces %word, %answer, %note, %from and %to, in this order.
QString expandEntryVariables(const QString &questionTemplate, const QuizQuestion &question);

/// A text of the string table to show after an answer.
struct FeedbackText
{
    int number = 0;
    QString text;
};
std::optional<FeedbackText> feedbackText(const CTexts &texts, const QuizSettings &settings,
    AnswerVerdict verdict, const QuizQuestion &question, const QString &typed);
