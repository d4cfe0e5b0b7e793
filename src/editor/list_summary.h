// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <QString>

#include <array>

class CTexts;
class CWin32Doc;

/// The sentence of the status line: how many entries there are and how many of them are flagged in each
/// language, preceded by what is selected. Counts flags only after a change, and only where that was, since the
/// selection changes with every key and a list may be long.
class CListSummary
{
public:
    /// Neither is owned.
    CListSummary(const CWin32Doc &document, const CTexts &texts);

    /// `entries` of the selected `rows` are entries, the first of them `first`; the other row is the new-entry
    /// row.
    QString Describe(int rows, int entries, int first);

private:
    void Count();

    const CWin32Doc &m_document;
    const CTexts &m_texts;
    CWordList m_counted; // The list as it was when the flags were counted; it shares the entries.
    std::array<int, 2> m_flagged = {};
};
