// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_difference.h"

class CQuizSession;
class CTexts;

/// What the user typed, a mark where it changes into what was right, and that: characters too many are struck
/// through, missing ones underlined. Long texts are shortened.
QString differenceAsHtml(const AnswerDifference &difference);
/// The same as a sentence with the steps from one to the other.
QString differenceInWords(const AnswerDifference &difference, const CTexts &texts);
/// The names of slips behind each other; empty for none.
QString slipNames(Slips slips, const CTexts &texts);

/// What was wrong with an answer to the word at a position, and by what slip or for which word it would have
/// been right: as markup in which texts of the user are escaped, or in sentences.
QString wrongAnswerAsHtml(
    const CQuizSession &session, const CTexts &texts, int position, const QString &answer);
QString wrongAnswerInWords(
    const CQuizSession &session, const CTexts &texts, int position, const QString &answer);
