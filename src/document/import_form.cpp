// SPDX-License-Identifier: MIT
#include "document/import_form.h"

#include "document/list_placeholders.h"
#include "document/loss_texts.h"
#include "document/separators.h"
#include "document/text_numbers.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "resources/texts.h"

#include <algorithm>
#include <array>

namespace {

// In the order of their texts.
constexpr std::array Quotes = {u'\0', u'"', u'\''};

constexpr qsizetype LongestName = 60; // Of a column, in code units.

}

CImportForm::CImportForm(CImportPreview &preview, const CTexts &texts)
    : m_preview(preview), m_texts(texts), m_firstSeparator(preview.Choices().layout.separator)
{
}

QStringList CImportForm::Separators() const
{
    QStringList separators = m_texts.Get(Text::Separators).split(u'\n');
    if (!UsualSeparators.contains(QChar(m_firstSeparator))) {
        separators.append(QString(QChar(m_firstSeparator)));
    }
    return separators;
}

int CImportForm::Separator() const
{
    const qsizetype index = UsualSeparators.indexOf(QChar(m_preview.Choices().layout.separator));
    return int(index < 0 ? UsualSeparators.size() : index);
}

void CImportForm::ChooseSeparator(int index)
{
    if (index >= 0 && index < UsualSeparators.size()) {
        m_preview.SetSeparator(UsualSeparators.at(index).unicode());
    } else {
        m_preview.SetSeparator(m_firstSeparator);
    }
}

int CImportForm::Quote() const
{
    const auto *const quote = std::ranges::find(Quotes, m_preview.Choices().layout.quote);
    return quote == Quotes.end() ? 0 : int(quote - Quotes.begin());
}

void CImportForm::ChooseQuote(int index)
{
    if (index >= 0 && index < int(Quotes.size())) {
        m_preview.SetQuote(Quotes[size_t(index)]);
    }
}

int CImportForm::Encoding() const
{
    return int(m_preview.Choices().layout.encoding.value_or(TextEncoding::Utf8));
}

void CImportForm::ChooseEncoding(int index)
{
    m_preview.SetEncoding(TextEncoding(index));
}

void CImportForm::ChooseHeading(bool hasHeading)
{
    m_preview.SetHeading(hasHeading);
}

void CImportForm::ChooseTerms(const TermOptions &terms)
{
    m_preview.SetTerms(terms);
}

QStringList CImportForm::Kinds() const
{
    return m_texts.Get(Text::ColumnKinds).split(u'\n');
}

void CImportForm::ChooseKind(int column, int kind)
{
    m_preview.SetColumn(column, TextColumn(kind));
}

QString CImportForm::NameOfColumn(int column) const
{
    return ShownShort(OneLine(m_preview.Heading().value(column)), LongestName);
}

QString CImportForm::ColumnHeading(int column) const
{
    const QString number = FormatNumber(column + 1);
    const QString name = NameOfColumn(column);
    const QString caption = name.isEmpty() ? m_texts.Fill(Text::PreviewColumn, {number})
                                           : m_texts.Fill(Text::PreviewNamedColumn, {number, name});
    return caption + u'\n' + Kinds().value(Kind(column));
}

QString CImportForm::EntryHeading(int field) const
{
    const auto &columns = m_preview.Choices().layout.columns;
    const auto column = std::ranges::find(columns, TextColumn(field + 1));
    const QString name =
        field < 2 && column != columns.end() ? NameOfColumn(int(column - columns.begin())) : QString();
    return FirstGiven(name, Kinds().value(field + 1));
}

QString CImportForm::HeadingInWords() const
{
    return m_texts.Get(HasHeading() ? Text::FirstRowIsHeading : Text::FirstRowIsNoHeading);
}

QString CImportForm::ColumnsInWords() const
{
    const QStringList kinds = Kinds();
    QStringList words;
    for (int column = 0; column < m_preview.ColumnCount(); ++column) {
        words.append(kinds.value(Kind(column)));
    }
    return m_texts.Fill(Text::ColumnsAre, {ShownShort(words.join(QStringLiteral(", ")))});
}

QString CImportForm::Summary() const
{
    const auto &rows = m_preview.Rows();
    const auto entries = std::ranges::count_if(rows, [](const auto &row) { return row.entry.has_value(); });
    QString summary = m_texts.Fill(m_preview.HasMore() ? Text::PreviewFirstRows : Text::PreviewCounts,
        {FormatNumber(qint64(rows.size())), FormatNumber(entries)});
    if (!CanImport()) {
        return summary + u' ' + m_texts.Get(rows.empty() ? Text::PreviewNoRows : Text::PreviewNoTerm);
    }
    if (!m_preview.Losses().empty()) {
        summary += u' ' + m_texts.Fill(Text::PreviewLosses, {LossesAsText(m_preview.Losses(), m_texts, u"; ")});
    }
    return summary;
}
