// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/import_preview.h"

#include <QStringList>

class CTexts;

/// What the preview of a separated text shows and lets choose: choices are indices into lists of texts. Knows
/// no window.
class CImportForm
{
public:
    /// Neither is owned.
    CImportForm(CImportPreview &preview, const CTexts &texts);

    const CTexts &Texts() const { return m_texts; }
    const CImportPreview &Preview() const { return m_preview; }

    /// The last one is that of the text where that is an unusual one.
    QStringList Separators() const;
    int Separator() const;
    void ChooseSeparator(int index);
    int Quote() const;
    void ChooseQuote(int index);
    int Encoding() const;
    void ChooseEncoding(int index);
    bool HasHeading() const { return m_preview.Choices().layout.hasHeading; }
    void ChooseHeading(bool hasHeading);
    const TermOptions &Terms() const { return m_preview.Choices().terms; }
    void ChooseTerms(const TermOptions &terms);

    /// The kinds of columns, and that of a column.
    QStringList Kinds() const;
    int Kind(int column) const { return int(m_preview.Column(column)); }
    void ChooseKind(int column, int kind);
    /// Two lines: the column with its name where it has one, and what it becomes.
    QString ColumnHeading(int column) const;
    /// Of the entries' column: 0 and 1 are the languages, 2 the note, 3 and 4 the flags.
    QString EntryHeading(int field) const;

    /// Whether the first row is a heading, and what all columns are, in words.
    QString HeadingInWords() const;
    QString ColumnsInWords() const;
    /// How many rows there are, how many entries they become, and what could not be taken.
    QString Summary() const;
    bool CanImport() const { return m_preview.CanRead() && !m_preview.Rows().empty(); }

private:
    QString NameOfColumn(int column) const;

    CImportPreview &m_preview;
    const CTexts &m_texts;
    char16_t m_firstSeparator; // As it was guessed.
};
