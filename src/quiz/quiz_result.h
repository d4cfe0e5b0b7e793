// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CQuizSession;
class CTexts;

/// One word of a session in the table of results.
struct QuizResultRow
{
    QString question;
    QString answer;
    /// "right of answers (percent)", or a dash for a word without answers.
    QString share;
    /// Right answers in percent, rounded half up; -1 without answers.
    int percent = -1;
    /// The wrong answers given, each in quotation marks.
    QString wrongAnswers;
};

QuizResultRow resultRow(const CQuizSession &session, const CTexts &texts, int position);
/// Words, answers, right answers and their share in one sentence.
QString resultSummary(const CQuizSession &session, const CTexts &texts);
