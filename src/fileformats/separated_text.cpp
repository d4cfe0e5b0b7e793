// SPDX-License-Identifier: MIT
#include "fileformats/separated_text.h"

#include "fileformats/column_names.h"
#include "fileformats/reading.h"
#include "fileformats/separated_text_guess.h"
#include "fileformats/text_detection.h"
#include "model/term_syntax.h"
#include "model/word_list.h"

#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <array>

namespace {

/// Nothing is left of such a cell in a list; blanks of other kinds are text there.
bool IsBlank(QStringView cell)
{
    return std::ranges::all_of(cell, [](QChar unit) { return unit <= u' '; });
}

}

CSeparatedTextReader::CSeparatedTextReader(
    QIODevice &device, const SeparatedTextOptions &options, const TermOptions &terms, CLossCounter &losses)
    : m_options(options), m_input(device, options.encoding.value_or(TextEncoding::Utf8)),
      m_rows(m_input, options.separator, options.quote), m_losses(losses), m_entries(terms, losses)
{
}

bool CSeparatedTextReader::ReadFilledRow()
{
    while (m_rows.ReadRow()) {
        const bool isFirst = m_isStart;
        m_isStart = false;
        if ((isFirst && SaysSeparator(Cells())) || std::ranges::all_of(Cells(), IsBlank)) {
            continue;
        }
        if (m_options.columns.size() > 1 && IsComment(Cells())) {
            m_losses.Add(LossKind::Rows);
            continue;
        }
        return true;
    }
    return false;
}

bool CSeparatedTextReader::ReadRow()
{
    if (m_options.hasHeading && !m_hasReadHeading) {
        m_hasReadHeading = true;
        for (int row = 0; row < m_options.titleRows && ReadFilledRow(); ++row) {
            m_losses.Add(LossKind::Rows);
        }
        if (!ReadFilledRow()) {
            return false;
        }
        for (const QStringView cell : Cells()) {
            QString name = cell.toString();
            CleanSpaces(name);
            m_heading.append(name);
        }
    }
    return ReadFilledRow();
}

std::optional<CWordEntry> CSeparatedTextReader::Entry()
{
    ForeignTexts texts;
    const std::span<const QStringView> cells = Cells();
    m_hasText.resize(std::max(m_hasText.size(), cells.size()));
    bool isDamaged = false;
    for (size_t column = 0; column < cells.size(); ++column) {
        const QStringView cell = cells[column];
        isDamaged = isDamaged || (m_input.HasDamage() && cell.contains(QChar::ReplacementCharacter));
        switch (column < m_options.columns.size() ? m_options.columns[column] : TextColumn::LeftOut) {
        case TextColumn::LeftOut:
            m_hasText[column] = m_hasText[column] || !cell.isEmpty();
            break;
        case TextColumn::Term1:
            texts.term1 = cell;
            break;
        case TextColumn::Term2:
            texts.term2 = cell;
            break;
        case TextColumn::Note:
            texts.note = cell;
            break;
        case TextColumn::Flag1:
            texts.flag1 = IsFlagSet(cell);
            break;
        case TextColumn::Flag2:
            texts.flag2 = IsFlagSet(cell);
            break;
        }
    }
    CWordEntry entry = m_entries.Make(texts);
    m_losses.Add(LossKind::DamagedText, int(isDamaged));
    if (!entry.HasTerm()) {
        m_losses.Add(LossKind::Rows);
        return std::nullopt;
    }
    return entry;
}

QString CSeparatedTextReader::Language(int term) const
{
    const auto column = std::ranges::find(m_options.columns, term == 0 ? TextColumn::Term1 : TextColumn::Term2);
    if (column == m_options.columns.end()) {
        return {};
    }
    const QString name = m_heading.value(column - m_options.columns.begin());
    // The names of columns whose languages have none.
    return name == NameOfColumn(*column) ? QString() : name;
}

ReadResult CSeparatedTextReader::Result() const
{
    if (m_input.Failed()) {
        return ReadResult::CannotOpen;
    }
    return m_rows.RowTooLong() ? ReadResult::LineTooLong : ReadResult::Read;
}

void CSeparatedTextReader::CountRest()
{
    m_losses.Add(LossKind::Columns, int(std::ranges::count(m_hasText, true)));
    m_losses.Add(LossKind::OpenQuotes, m_rows.OpenQuotes());
}

bool IsFlagSet(QStringView cell)
{
    constexpr std::array<QStringView, 7> No = {u"", u"0", u"no", u"nej", u"false", u"falskt", u"-"};
    const QStringView text = cell.trimmed();
    return std::ranges::none_of(
        No, [text](QStringView no) { return text.compare(no, Qt::CaseInsensitive) == 0; });
}

bool SeparatedTextFormat::Recognises(const FormatSample &sample, FormatSource & /*source*/)
{
    if (LooksBinary(sample.head)) {
        return false;
    }
    return std::ranges::any_of(FormatOf(FormatId::SeparatedText).suffixes, [&sample](QLatin1StringView suffix) {
        return sample.suffix == suffix;
    }) || GuessSeparatedText(DecodeHead(sample.head), sample.isWhole).looksSeparated;
}

ReadResult SeparatedTextFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses)
{
    const SeparatedTextOptions complete = CompletedOptions(
        source.device, options.separated, QFileInfo(source.path).suffix().toLower(), options.keepGoing);
    CSeparatedTextReader reader(source.device, complete, options.terms, losses);
    while (MayGoOn(list, options.keepGoing) && reader.ReadRow()) {
        if (auto entry = reader.Entry()) {
            list.Insert(std::move(*entry));
        }
    }
    for (const int language : {0, 1}) {
        list.SetLanguage(language, reader.Language(language));
    }
    list.SetAuthor({});
    reader.CountRest();
    return reader.Result();
}
