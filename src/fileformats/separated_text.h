// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/foreign_entries.h"
#include "fileformats/formats.h"
#include "fileformats/row_reader.h"

#include <optional>

class CTextOutput;

/// Reads a separated text row by row, and makes entries of the rows.
class CSeparatedTextReader
{
public:
    /// `options` are complete: encoding and columns are known. `device` and `losses` must outlive this.
    CSeparatedTextReader(
        QIODevice &device, const SeparatedTextOptions &options, const TermOptions &terms, CLossCounter &losses);

    /// Goes to the next row that is neither empty nor the heading; false at the end.
    bool ReadRow();
    /// The cells of that row as they are in the file, quotes removed; they last until the next call.
    std::span<const QStringView> Cells() const { return m_rows.Fields(); }
    /// What that row becomes; nothing without a term.
    std::optional<CWordEntry> Entry();
    /// The names of the columns once the first row was read; empty without a heading.
    const QStringList &Heading() const { return m_heading; }
    /// The language that the heading names for a term, 0 or 1.
    QString Language(int term) const;

    /// How the reading ended.
    ReadResult Result() const;
    /// Counts what is known at the end of the reading.
    void CountRest();

private:
    bool ReadFilledRow();

    SeparatedTextOptions m_options;
    CTextInput m_input;
    CRowReader m_rows;
    CLossCounter &m_losses;
    CForeignEntries m_entries;
    QStringList m_heading;
    std::vector<bool> m_hasText; // Of the columns that are left out.
    bool m_isStart = true;
    bool m_hasReadHeading = false;
};

/// Writes the rows of the entries that have a term.
void WriteEntryRows(const CWordList &list, CTextOutput &output, const SeparatedTextOptions &layout,
    AlternativeMark alternatives);
/// What separated text of this layout, of which nothing is missing, does not hold of the entries.
void CountEntryLosses(const CWordList &list, const SeparatedTextOptions &layout, CLossCounter &losses);
/// The columns in which the list has something.
std::vector<TextColumn> ColumnsOf(const CWordList &list);

/// Whether a cell of a flag column sets the flag: anything but nothing, "0" and words for no.
bool IsFlagSet(QStringView cell);

namespace SeparatedTextFormat {

/// By its suffix, or because it looks like one.
bool Recognises(const FormatSample &sample, FormatSource &source);
ReadResult Read(CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses);
void Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses);
bool Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options);

}
