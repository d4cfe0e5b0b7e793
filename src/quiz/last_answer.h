// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

class CQuizSession;
class CTexts;

/// What a quiz window shows of the answer given last, until the next one.
struct LastAnswer
{
    bool isRight = false;
    /// In a word.
    QString verdict = {};
    /// The entry as it stands, with its note; empty where right answers aren't to be shown.
    QString entry = {};
    /// What was wrong, as markup; empty for a right answer, and where right answers aren't to be shown.
    QString difference = {};
};

/// Judged as the entry is now; nothing before the first answer.
std::optional<LastAnswer> lastAnswer(const CQuizSession &session, const CTexts &texts);
