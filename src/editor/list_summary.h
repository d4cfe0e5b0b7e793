// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

class CTexts;
class CWin32Doc;

/// The sentence of the status line: how many entries there are and how many of them are flagged in each
/// language, preceded by what is selected. Counts flags only after a change, since the selection changes with
/// every key.
class CListSummary
{
public:
    /// Neither is owned.
    CListSummary(const CWin32Doc &document, const CTexts &texts);

    /// `entries` of the selected `rows` are entries, the first of them `first`; the other row is the new-entry
    /// row.
    QString Describe(int rows, int entries, int first);

private:
    const CWin32Doc &m_document;
    const CTexts &m_texts;
    std::optional<quint64> m_counted; // The document's change counter when the flags were counted.
    std::array<int, 2> m_flagged = {};
};
