// SPDX-License-Identifier: MIT
#include "fileformats/import_preview.h"

#include "fileformats/column_guess.h"
#include "fileformats/separated_text.h"
#include "fileformats/separated_text_guess.h"
#include "fileformats/text_detection.h"
#include "platform/plain_text.h"
#include "platform/regular_file.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

/// What is usual in lists of other programs. A comma stands in many a single answer.
constexpr TermOptions UsualTerms = {.semicolonsSeparate = true, .slashesSeparate = true};

}

CImportPreview::CImportPreview() = default;
CImportPreview::~CImportPreview() = default;

std::unique_ptr<QIODevice> CImportPreview::Device() const
{
    if (m_path.isEmpty()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(m_bytes);
        buffer->open(QIODevice::ReadOnly);
        return buffer;
    }
    auto file = std::make_unique<QFile>();
    return OpenRegularFile(*file, m_path) ? std::move(file) : nullptr;
}

ReadResult CImportPreview::OpenFile(const QString &path)
{
    m_path = path;
    m_bytes.clear();
    const auto device = Device();
    if (device == nullptr) {
        return ReadResult::CannotOpen;
    }
    if (device->size() > FileLimits::MostBytes) {
        return ReadResult::TooLarge;
    }
    if (LooksBinary(device->read(FormatSample::SampleSize))) {
        return ReadResult::Binary;
    }
    GuessAll();
    return ReadResult::Read;
}

void CImportPreview::OpenText(const QString &text)
{
    m_path.clear();
    m_bytes = text.toUtf8();
    GuessAll();
}

void CImportPreview::GuessAll()
{
    m_choices = {.terms = UsualTerms};
    if (const auto device = Device()) {
        m_choices.layout = CompletedOptions(*device, {}, QFileInfo(m_path).suffix().toLower());
    }
    if (m_path.isEmpty()) {
        m_choices.layout.encoding = TextEncoding::Utf8;
    }
    Refresh();
}

bool CImportPreview::Adopt(const ImportChoices &choices)
{
    const ImportChoices before = m_choices;
    m_choices = choices;
    // These of each file are its own.
    m_choices.layout.encoding = before.layout.encoding;
    m_choices.layout.titleRows = before.layout.titleRows;
    Refresh();
    if (m_columnCount == int(choices.layout.columns.size())) {
        return true;
    }
    m_choices = before;
    Refresh();
    return false;
}

void CImportPreview::SetSeparator(char16_t separator)
{
    m_choices.layout.separator = separator;
    GuessColumnsAnew();
}

void CImportPreview::SetQuote(char16_t quote)
{
    m_choices.layout.quote = quote;
    GuessColumnsAnew();
}

void CImportPreview::SetEncoding(TextEncoding encoding)
{
    if (!m_path.isEmpty()) {
        m_choices.layout.encoding = encoding;
        GuessColumnsAnew();
    }
}

void CImportPreview::GuessColumnsAnew(std::optional<bool> hasHeading)
{
    m_choices.layout.hasHeading = false; // All rows are looked at.
    Refresh();
    std::vector<QStringList> rows;
    for (const Row &row : m_rows) {
        rows.push_back(row.cells);
    }
    m_choices.layout.hasHeading = hasHeading.value_or(GuessHeading(rows));
    m_choices.layout.titleRows = m_choices.layout.hasHeading ? GuessTitleRows(rows) : 0;
    m_choices.layout.columns = GuessColumns(rows, m_choices.layout.hasHeading);
    Refresh();
}

void CImportPreview::SetHeading(bool hasHeading)
{
    GuessColumnsAnew(hasHeading);
}

TextColumn CImportPreview::Column(int column) const
{
    const auto &columns = m_choices.layout.columns;
    return column >= 0 && column < int(columns.size()) ? columns[size_t(column)] : TextColumn::LeftOut;
}

void CImportPreview::SetColumn(int column, TextColumn kind)
{
    if (column < 0 || column >= m_columnCount) {
        return;
    }
    auto &columns = m_choices.layout.columns;
    columns.resize(std::max(columns.size(), size_t(m_columnCount)));
    const TextColumn before = columns[size_t(column)];
    if (kind != TextColumn::LeftOut) {
        std::ranges::replace(columns, kind, before);
    }
    columns[size_t(column)] = kind;
    Refresh();
}

void CImportPreview::SetTerms(const TermOptions &terms)
{
    m_choices.terms = terms;
    Refresh();
}

bool CImportPreview::CanRead() const
{
    return std::ranges::any_of(m_choices.layout.columns,
        [](TextColumn column) { return column == TextColumn::Term1 || column == TextColumn::Term2; });
}

void CImportPreview::Refresh()
{
    constexpr qsizetype MostUnits = 4'000'000; // Of the rows that are looked at.
    m_rows.clear();
    m_heading.clear();
    m_columnCount = 0;
    m_hasMore = false;
    CLossCounter losses;
    if (const auto device = Device()) {
        CSeparatedTextReader reader(*device, m_choices.layout, m_choices.terms, losses);
        qsizetype units = 0;
        while (reader.ReadRow()) {
            if (int(m_rows.size()) == MostRows || units > MostUnits) {
                m_hasMore = true;
                break;
            }
            Row row;
            for (const QStringView cell : reader.Cells()) {
                row.cells.append(ShownShort(cell.toString()));
                units += cell.size();
            }
            m_columnCount = std::max(m_columnCount, int(row.cells.size()));
            row.entry = reader.Entry();
            m_rows.push_back(std::move(row));
        }
        m_heading = reader.Heading();
        m_columnCount = std::max(m_columnCount, int(m_heading.size()));
        reader.CountRest();
    }
    m_losses = losses.Losses();
}

FormatReadOptions CImportPreview::ReadOptions() const
{
    return {
        .format = &FormatOf(FormatId::SeparatedText), .separated = m_choices.layout, .terms = m_choices.terms};
}

FormatReading CImportPreview::Read(CWordList &list, const KeepGoing *keepGoing) const
{
    FormatReadOptions options = ReadOptions();
    options.keepGoing = keepGoing;
    return m_path.isEmpty() ? ReadListBytes(list, m_bytes, options) : ReadListFile(list, m_path, options);
}

std::optional<ImportChoices> CRememberedChoices::Of(const QString &folder) const
{
    const auto found = m_choices.constFind(folder);
    return found == m_choices.constEnd() ? std::nullopt : std::optional(*found);
}
