// SPDX-License-Identifier: MIT
#include "fileformats/anki_text.h"

#include "fileformats/column_names.h"
#include "fileformats/html_text.h"
#include "fileformats/plain_formats.h"
#include "fileformats/reading.h"
#include "fileformats/separated_text.h"
#include "fileformats/text_detection.h"
#include "fileformats/text_output.h"
#include "model/term_syntax.h"

#include <QSet>

#include <array>

namespace {

/// What the lines at the start say. Columns are counted from 0.
struct Header
{
    char16_t separator = u'\t';
    bool isHtml = true;
    int lines = 0;
    QSet<qsizetype> noFields; // Columns that are a deck, a kind of note or an identity.
    qsizetype tags = -1;
};

char16_t SeparatorOfName(QStringView name)
{
    constexpr std::array<std::pair<QStringView, char16_t>, 6> Names = {{{u"tab", u'\t'}, {u"comma", u','},
        {u"semicolon", u';'}, {u"pipe", u'|'}, {u"colon", u':'}, {u"space", u' '}}};
    for (const auto &[known, separator] : Names) {
        if (name.compare(known, Qt::CaseInsensitive) == 0) {
            return separator;
        }
    }
    // The character itself; one that ends rows or quotes can't be.
    return name.size() == 1 && name[0] != u'"' ? name[0].unicode() : u'\t';
}

void Take(QStringView line, Header &header)
{
    const qsizetype colon = line.indexOf(u':');
    const QStringView key = line.first(std::max<qsizetype>(colon, 0)).sliced(colon > 0 ? 1 : 0);
    const QStringView value = line.sliced(colon + 1);
    const auto is = [key](QStringView name) { return key.compare(name, Qt::CaseInsensitive) == 0; };
    if (is(u"separator")) {
        header.separator = SeparatorOfName(value.trimmed().isEmpty() ? value : value.trimmed());
    } else if (is(u"html")) {
        header.isHtml = value.trimmed().compare(u"false", Qt::CaseInsensitive) != 0;
    } else if (is(u"tags column")) {
        header.tags = value.trimmed().toInt() - 1;
        header.noFields.insert(header.tags);
    } else if (is(u"deck column") || is(u"notetype column") || is(u"guid column")) {
        header.noFields.insert(value.trimmed().toInt() - 1);
    }
}

Header ReadHeader(QIODevice &device, TextEncoding encoding)
{
    Header header;
    CTextInput input(device, encoding);
    constexpr char16_t NoSeparator = 0xFFFF;
    CRowReader lines(input, NoSeparator, 0);
    while (lines.ReadRow() && lines.Fields()[0].startsWith(u'#')) {
        Take(lines.Fields()[0], header);
        ++header.lines;
    }
    return header;
}

/// The fields of a note, in their order.
class CFields
{
public:
    CFields(const Header &header, CLossCounter &losses) : m_header(header), m_losses(losses) { }

    ForeignTexts Take(std::span<const QStringView> cells)
    {
        m_fields.clear();
        bool others = false;
        for (size_t column = 0; column < cells.size(); ++column) {
            if (qsizetype(column) == m_header.tags) {
                m_losses.Add(LossKind::Tags, int(!cells[column].trimmed().isEmpty()));
            } else if (m_header.noFields.contains(qsizetype(column))) {
                continue;
            } else if (m_fields.size() < CWordEntry::FieldCount) {
                m_fields.append(Text(cells[column]));
            } else {
                others = others || !cells[column].trimmed().isEmpty();
            }
        }
        m_hasOthers = m_hasOthers || others;
        m_fields.resize(CWordEntry::FieldCount);
        return {.term1 = m_fields.at(0), .term2 = m_fields.at(1), .note = m_fields.at(2)};
    }
    bool HasOthers() const { return m_hasOthers; }

private:
    QString Text(QStringView cell)
    {
        if (!m_header.isHtml) {
            return cell.toString();
        }
        HtmlText text = TextOfHtml(cell);
        m_losses.Add(LossKind::Markup, int(text.hadMarkup));
        m_losses.Add(LossKind::Details, int(text.hadMedia));
        return std::move(text.text);
    }

    const Header &m_header;
    CLossCounter &m_losses;
    QStringList m_fields;
    bool m_hasOthers = false;
};

/// The names of the first two fields; `cells` are those of a line of the header.
void TakeLanguages(std::span<const QStringView> cells, const Header &header, CWordList &list)
{
    constexpr QStringView Key = u"#columns:";
    if (cells.empty() || !cells[0].startsWith(Key, Qt::CaseInsensitive)) {
        return;
    }
    int language = 0;
    for (size_t column = 0; column < cells.size() && language < CWordEntry::LanguageCount; ++column) {
        if (!header.noFields.contains(qsizetype(column))) {
            QString name = cells[column].sliced(column == 0 ? Key.size() : 0).toString();
            if (name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"')) {
                name = name.sliced(1, name.size() - 2).replace(QStringLiteral("\"\""), QStringLiteral("\""));
            }
            CleanSpaces(name);
            const bool isNameless = name == NameOfColumn(language == 0 ? TextColumn::Term1 : TextColumn::Term2);
            list.SetLanguage(language++, isNameless ? QString() : name);
        }
    }
}

SeparatedTextOptions LayoutOf(const CWordList &list)
{
    SeparatedTextOptions layout = {
        .separator = u'\t', .encoding = TextEncoding::Utf8, .writesMark = false, .hasHeading = false};
    layout.columns = {TextColumn::Term1, TextColumn::Term2};
    if (list.AnyNote()) {
        layout.columns.push_back(TextColumn::Note);
    }
    return layout;
}

}

bool AnkiTextFormat::Recognises(const FormatSample &sample, FormatSource & /*source*/)
{
    constexpr std::array<QStringView, 9> Keys = {u"#separator:", u"#html:", u"#tags:", u"#columns:",
        u"#notetype:", u"#deck:", u"#tags column:", u"#notetype column:", u"#guid column:"};
    constexpr qsizetype Enough = 64;
    const QString start = DecodeHead(sample.head.first(std::min(Enough, sample.head.size())));
    return std::ranges::any_of(
        Keys, [&start](QStringView key) { return start.startsWith(key, Qt::CaseInsensitive); });
}

ReadResult AnkiTextFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses)
{
    const TextEncoding encoding = DetectEncoding(source.device, options.keepGoing);
    const Header header = ReadHeader(source.device, encoding);
    CTextInput input(source.device, encoding);
    CRowReader rows(input, header.separator, u'"');
    CForeignEntries entries(options.terms, losses);
    CFields fields(header, losses);
    list.SetProperties({.language1 = QString(), .language2 = QString(), .author = QString()});
    for (int line = 0; MayGoOn(list, options.keepGoing) && rows.ReadRow(); ++line) {
        if (line < header.lines) {
            TakeLanguages(rows.Fields(), header, list);
            continue;
        }
        CWordEntry entry = entries.Make(fields.Take(rows.Fields()));
        if (entry.HasTerm()) {
            list.Insert(std::move(entry));
        } else {
            losses.Add(LossKind::Rows, int(entry.HasNote()));
        }
    }
    losses.Add(LossKind::Columns, int(fields.HasOthers()));
    losses.Add(LossKind::OpenQuotes, rows.OpenQuotes());
    if (input.Failed()) {
        return ReadResult::CannotOpen;
    }
    return rows.RowTooLong() ? ReadResult::LineTooLong : ReadResult::Read;
}

void AnkiTextFormat::Count(const CWordList &list, const FormatWriteOptions & /*options*/, CLossCounter &losses)
{
    CountEntryLosses(list, LayoutOf(list), losses);
    CountProperties(list, false, false, losses);
}

bool AnkiTextFormat::Write(const CWordList &list, QIODevice &device, const FormatWriteOptions &options)
{
    SeparatedTextOptions layout = LayoutOf(list);
    CTextOutput output(device, *layout.encoding, layout.writesMark);
    output.Write(u"#separator:tab\n#html:false\n");
    if (!list.GetLanguage(0).isEmpty() || !list.GetLanguage(1).isEmpty()) {
        output.Write(u"#columns:");
        layout.hasHeading = true;
    }
    WriteEntryRows(list, output, layout, options.alternatives);
    return output.Finish();
}
