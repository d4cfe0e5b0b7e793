// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_input.h"

#include <QStringView>

#include <span>
#include <vector>

/// Takes a separated text apart, row by row, by the rules of RFC 4180, and takes what breaks them as it may
/// have been meant: blanks before a quote are no text, text behind a closing quote belongs to the field, and a
/// quote that nothing closes is text. LF, CR LF and CR end a row outside quotes.
class CRowReader
{
public:
    /// In code units. A longer row holds no words; reading ends there.
    static constexpr qsizetype LongestRow = 16'000'000;
    /// How far a closing quote is looked for.
    static constexpr qsizetype LongestQuoted = 1'000'000;

    /// `quote` is 0 where nothing quotes. `input` must outlive this.
    CRowReader(CTextInput &input, char16_t separator, char16_t quote);

    /// Returns false at the end.
    bool ReadRow();
    /// One at least; they last until the next call.
    std::span<const QStringView> Fields() const { return m_fields; }

    /// True when the end was not the end of the text but a row that is too long.
    bool RowTooLong() const { return m_rowTooLong; }
    /// How many quotes began a field and nothing closed them.
    int OpenQuotes() const { return m_openQuotes; }
    /// How many fields were quoted by the rules, and how many had text behind the closing quote.
    int QuotedFields() const { return m_quotedFields; }
    int LooseFields() const { return m_looseFields; }

private:
    /// A part of the row, by its distances from the start of the row.
    struct Span
    {
        qsizetype begin;
        qsizetype end;
    };

    /// Makes sure that the unit at this distance from the start of the row is there; false at the end.
    bool Has(qsizetype offset);
    char16_t Unit(qsizetype offset) const { return m_units[size_t(m_position + offset)]; }
    bool EndsField(char16_t unit) const { return unit == m_separator || unit == u'\n' || unit == u'\r'; }
    /// The first end of a field from `from` on, or the end of the text.
    qsizetype FindFieldEnd(qsizetype from);
    /// The quote that closes what begins at `from`; -1 when nothing does.
    qsizetype FindClosingQuote(qsizetype from);
    void ReadPlain();
    /// Returns false when the field, which begins at `m_next`, is not quoted.
    bool ReadQuoted();
    /// Steps over what ends a field. Returns false where that ends the row.
    bool Step();

    CTextInput &m_input;
    char16_t m_separator;
    char16_t m_quote;
    std::vector<char16_t> m_units; // The row begins at m_position; what is known of the text ends at m_count.
    qsizetype m_position = 0;
    qsizetype m_count = 0;
    qsizetype m_next = 0; // Up to where the row is taken apart.
    std::vector<Span> m_spans;
    std::vector<QStringView> m_fields;
    bool m_rowTooLong = false;
    int m_openQuotes = 0;
    int m_quotedFields = 0;
    int m_looseFields = 0;
};
