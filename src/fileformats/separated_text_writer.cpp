// SPDX-License-Identifier: MIT
#include "fileformats/column_names.h"
#include "fileformats/plain_formats.h"
#include "fileformats/separated_text.h"
#include "fileformats/text_output.h"
#include "model/word_list.h"

#include <algorithm>
#include <array>

namespace {

/// Beginnings by which the file would be taken for another format; quoted, they are not.
bool LooksLikeAnother(QStringView field)
{
    constexpr std::array<QStringView, 3> Starts = {u"Ordelin", u"WordQuiz", u"sep="};
    return std::ranges::any_of(Starts, [field](QStringView start) { return field.startsWith(start); });
}

SeparatedTextOptions OptionsOf(const CWordList &list, const FormatWriteOptions &options)
{
    SeparatedTextOptions complete = options.separated.value_or(SeparatedTextOptions());
    if (complete.columns.empty()) {
        complete.columns = ColumnsOf(list);
    }
    complete.encoding = complete.encoding.value_or(TextEncoding::Utf8);
    return complete;
}

bool Has(const SeparatedTextOptions &options, TextColumn column)
{
    return std::ranges::find(options.columns, column) != options.columns.end();
}

QString HeadingOf(const CWordList &list, TextColumn column)
{
    const QString name = column == TextColumn::Term1 ? list.GetLanguage(0)
        : column == TextColumn::Term2                ? list.GetLanguage(1)
                                                     : QString();
    // A row of blanks would be none.
    return name.trimmed().isEmpty() ? NameOfColumn(column) : name;
}

QString CellOf(const CWordEntry &entry, TextColumn column, AlternativeMark mark)
{
    switch (column) {
    case TextColumn::Term1:
        return WithAlternativeMark(entry.GetText(0), mark);
    case TextColumn::Term2:
        return WithAlternativeMark(entry.GetText(1), mark);
    case TextColumn::Note:
        return entry.GetNote();
    case TextColumn::Flag1:
        return entry.GetFlag(0) ? QStringLiteral("1") : QStringLiteral("0");
    case TextColumn::Flag2:
        return entry.GetFlag(1) ? QStringLiteral("1") : QStringLiteral("0");
    case TextColumn::LeftOut:
        break;
    }
    return {};
}

/// Writes fields, quoted where they must be.
class CRowWriter
{
public:
    CRowWriter(CTextOutput &output, const SeparatedTextOptions &options)
        : m_output(output), m_separator(options.separator), m_quote(options.quote != 0 ? options.quote : u'"')
    {
    }

    void Write(QStringView field)
    {
        // What begins with "#" is no row in some programs.
        const bool isMistakable =
            (m_isStart && LooksLikeAnother(field)) || (!m_isInRow && field.startsWith(u'#'));
        if (m_isInRow) {
            m_output.Write(m_separator);
        }
        m_isInRow = true;
        if (isMistakable || MustBeQuoted(field)) {
            WriteQuoted(field);
        } else {
            m_output.Write(field);
        }
        m_isStart = false;
    }
    void EndRow()
    {
        m_output.Write(u"\r\n");
        m_isInRow = false;
    }

private:
    bool MustBeQuoted(QStringView field) const
    {
        return std::ranges::any_of(field, [this](QChar unit) {
            return unit == m_separator || unit == m_quote || unit == u'\n' || unit == u'\r';
        });
    }
    void WriteQuoted(QStringView field)
    {
        m_output.Write(m_quote);
        for (const QChar unit : field) {
            if (unit == m_quote) {
                m_output.Write(m_quote);
            }
            m_output.Write(unit.unicode());
        }
        m_output.Write(m_quote);
    }

    CTextOutput &m_output;
    char16_t m_separator;
    char16_t m_quote;
    bool m_isStart = true;
    bool m_isInRow = false;
};

}

std::vector<TextColumn> ColumnsOf(const CWordList &list)
{
    std::vector<TextColumn> columns = {TextColumn::Term1, TextColumn::Term2};
    if (list.AnyNote()) {
        columns.push_back(TextColumn::Note);
    }
    const bool second = list.CountFlagged(1) > 0;
    if (second || list.CountFlagged(0) > 0) {
        columns.push_back(TextColumn::Flag1);
    }
    if (second) {
        columns.push_back(TextColumn::Flag2);
    }
    return columns;
}

void WriteEntryRows(const CWordList &list, CTextOutput &output, const SeparatedTextOptions &layout,
    AlternativeMark alternatives)
{
    CRowWriter rows(output, layout);
    if (layout.hasHeading) {
        for (const TextColumn column : layout.columns) {
            rows.Write(HeadingOf(list, column));
        }
        rows.EndRow();
    }
    list.ForEach([&](int, const CWordEntry &entry) {
        if (entry.HasTerm()) {
            for (const TextColumn column : layout.columns) {
                rows.Write(CellOf(entry, column, alternatives));
            }
            rows.EndRow();
        }
    });
}

void CountEntryLosses(const CWordList &list, const SeparatedTextOptions &layout, CLossCounter &losses)
{
    const bool has1 = Has(layout, TextColumn::Term1);
    const bool has2 = Has(layout, TextColumn::Term2);
    const bool hasNote = Has(layout, TextColumn::Note);
    const bool hasFlag1 = Has(layout, TextColumn::Flag1);
    const bool hasFlag2 = Has(layout, TextColumn::Flag2);
    list.ForEach([&](int, const CWordEntry &entry) {
        losses.Add(LossKind::EntriesWithoutTerms, int(!entry.HasTerm()));
        losses.Add(LossKind::Terms,
            int(!has1 && !entry.GetText(0).isEmpty()) + int(!has2 && !entry.GetText(1).isEmpty()));
        losses.Add(LossKind::Notes, int(!hasNote && entry.HasNote()));
        losses.Add(LossKind::Flags, int(!hasFlag1 && entry.GetFlag(0)) + int(!hasFlag2 && entry.GetFlag(1)));
        for (int field = 0; field < CWordEntry::FieldCount; ++field) {
            losses.Add(LossKind::Characters, int(!CanBeWritten(entry.GetField(field), *layout.encoding)));
        }
    });
}

void SeparatedTextFormat::Count(const CWordList &list, const FormatWriteOptions &options, CLossCounter &losses)
{
    const SeparatedTextOptions layout = OptionsOf(list, options);
    CountEntryLosses(list, layout, losses);
    CountProperties(list, false, false, losses);
    for (const int language : {0, 1}) {
        losses.Add(LossKind::Languages, int(!layout.hasHeading && !list.GetLanguage(language).isEmpty()));
    }
}

bool SeparatedTextFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    const SeparatedTextOptions layout = OptionsOf(list, options);
    CTextOutput output(device, *layout.encoding, layout.writesMark);
    WriteEntryRows(list, output, layout, options.alternatives);
    return output.Finish();
}
