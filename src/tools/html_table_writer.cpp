// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "tools/table_writer.h"
#include "tools/text_numbers.h"

#include <algorithm>
#include <array>

namespace {

/// A text of the page, from the module in force if nothing that is filled in would get lost by that.
QString Markup(const CTexts &texts, int number, const QStringList &places)
{
    const QString text = texts.Get(number);
    const bool usable =
        std::ranges::all_of(places, [&](const QString &place) { return text.count(place) == 1; });
    return usable ? text : texts.Own().Text(number);
}

/// A text with places to be filled, cut at them once for all cells.
class CPattern
{
public:
    CPattern(const QString &text, const QStringList &places)
    {
        qsizetype done = 0;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const auto place = std::ranges::find_if(places,
                [rest = QStringView(text).sliced(i)](const QString &name) { return rest.startsWith(name); });
            if (place != places.end()) {
                m_parts.append({text.sliced(done, i - done), place - places.begin()});
                done = i + place->size();
                i = done - 1;
            }
        }
        m_parts.append({text.sliced(done), -1});
    }

    /// In the order in which the places were named.
    QString Filled(std::initializer_list<QStringView> values) const
    {
        QString filled;
        for (const Part &part : m_parts) {
            filled += part.before;
            if (part.place >= 0) {
                filled += values.begin()[part.place];
            }
        }
        return filled;
    }

private:
    struct Part
    {
        QString before;
        qsizetype place; // Negative at the end.
    };
    QList<Part> m_parts;
};

void AppendEscaped(QString &html, QStringView text)
{
    for (const QChar character : text) {
        switch (character.unicode()) {
        case u'&':
            html += QStringLiteral("&amp;");
            break;
        case u'<':
            html += QStringLiteral("&lt;");
            break;
        case u'>':
            html += QStringLiteral("&gt;");
            break;
        default:
            html += character;
        }
    }
}

QString Escaped(QStringView text)
{
    QString html;
    AppendEscaped(html, text);
    return html;
}

bool IsInPage(char32_t character)
{
    return (character >= 0x20 && character < 0x7F) || (character >= 0xA0 && character <= 0xFF)
        || character == u'\t' || character == u'\r' || character == u'\n';
}

/// With references for what Latin 1 has no character for. Browsers take its second set of control characters,
/// by reference too, for letters of another code page, so they are replaced like broken text.
QString InLatin1(const QString &html)
{
    if (std::ranges::all_of(html, [](QChar unit) { return IsInPage(unit.unicode()); })) {
        return html;
    }
    QString page;
    for (qsizetype i = 0; i < html.size(); ++i) {
        const QChar unit = html.at(i);
        char32_t character = unit.unicode();
        if (IsInPage(character)) {
            page += unit;
            continue;
        }
        if (unit.isHighSurrogate() && i + 1 < html.size() && html.at(i + 1).isLowSurrogate()) {
            character = QChar::surrogateToUcs4(unit, html.at(++i));
        } else if (character < 0xA0 || unit.isSurrogate()) {
            character = QChar::ReplacementCharacter;
        }
        page += QStringLiteral("&#%1;").arg(uint(character));
    }
    return page;
}

/// As the page has colours, from 0x00BBGGRR.
QString ColorCode(quint32 color)
{
    // Kept: without a number sign. Browsers read it all the same.
    return QStringLiteral("%1%2%3")
        .arg(color & 0xFFU, 2, 16, QLatin1Char('0'))
        .arg(color >> 8U & 0xFFU, 2, 16, QLatin1Char('0'))
        .arg(color >> 16U & 0xFFU, 2, 16, QLatin1Char('0'))
        .toUpper();
}

class CHtmlTableWriter : public ITableWriter
{
public:
    CHtmlTableWriter(CTableCells cells, const CTexts &texts);

    int RowCount() const override { return m_cells.RowCount(); }
    QString Head() const override { return m_head; }
    QString Row(int row) const override;
    QString Foot() const override { return m_foot; }

private:
    QString Headings() const;
    QString CellText(const TableCell &cell) const;
    QString CellMarkup(const QString &text, bool special, TableColumn column) const;
    QStringView CommentMark(bool begins) const;

    CTableCells m_cells;
    QString m_rowBegin;
    QString m_rowEnd;
    CPattern m_cell;
    CPattern m_bold;
    QString m_empty;
    std::array<QString, 4> m_commentMarks; // Begin and end, without and with brackets.
    QString m_special; // The attribute of a cell that has the special colour.
    QString m_width; // The attribute of a cell that has a share of the width.
    QString m_head;
    QString m_foot;
};

CHtmlTableWriter::CHtmlTableWriter(CTableCells cells, const CTexts &texts)
    : m_cells(std::move(cells)), m_rowBegin(texts.Get(Text::HtmlRowBegin)),
      m_rowEnd(texts.Get(Text::HtmlRowEnd)),
      m_cell(Markup(texts, Text::HtmlCell,
                 {QStringLiteral("$bg"), QStringLiteral("$width"), QStringLiteral("$s")}),
          {QStringLiteral("$bg"), QStringLiteral("$width"), QStringLiteral("$s")}),
      m_bold(Markup(texts, Text::HtmlBold, {QStringLiteral("$s")}), {QStringLiteral("$s")}),
      m_empty(texts.Get(Text::HtmlEmpty)), m_commentMarks{texts.Get(Text::HtmlItalicBegin),
                                               texts.Get(Text::HtmlItalicEnd),
                                               texts.Get(Text::HtmlItalicBracketBegin),
                                               texts.Get(Text::HtmlItalicBracketEnd)}
{
    const CreateTableSettings &options = m_cells.Options();
    const auto fill = [&](int number, const QStringList &values) {
        const QString own = texts.Own().Text(number);
        const QString text = texts.Get(number);
        // A module may not leave out a value, or the text after it.
        const auto places = [](const QString &format) {
            return format.count(QStringLiteral("%s")) + format.count(QStringLiteral("%d"));
        };
        return FillText(places(text) == places(own) ? text : own, values, FilledFor::Storage);
    };
    const auto background = [&](quint32 color) { return fill(Text::HtmlBackground, {ColorCode(color)}); };
    const auto width = [&](qsizetype share) { return fill(Text::HtmlWidth, {QString::number(share)}); };

    const qsizetype columnCount = m_cells.Columns().size();
    const qsizetype wide = columnCount - m_cells.Columns().count(TableColumn::Number);
    if (options.fullTableWidth && wide > 0) {
        m_width = width(100 / wide);
    }
    m_special = background(options.colorSpecial);
    const QString tableBackground =
        options.setTableBackground ? background(options.colorTableBackground) : QString();
    m_head = fill(Text::HtmlHead,
        {ColorCode(options.colorBackground), ColorCode(options.colorText), QString::number(options.border),
            options.fullTableWidth ? width(100) : QString(), tableBackground});
    if (options.showTitle) {
        m_head += m_rowBegin
            + fill(Text::HtmlTitle, {QString::number(columnCount), tableBackground, Escaped(options.title)})
            + m_rowEnd;
    }
    m_head = InLatin1(m_head + Headings());

    QString summary = Escaped(m_cells.Summary());
    summary.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    summary.replace(u'\r', u'\n');
    summary.replace(u'\n', texts.Get(Text::HtmlLineBreak));
    m_foot = InLatin1(fill(Text::HtmlFoot, {summary}));
}

QString CHtmlTableWriter::Headings() const
{
    QString html = m_rowBegin;
    for (const TableColumn column : m_cells.Columns()) {
        const QString heading = Escaped(m_cells.Heading(column));
        html += CellMarkup(heading.isEmpty() ? m_empty : heading, false, column);
    }
    return html + m_rowEnd;
}

QString CHtmlTableWriter::Row(int row) const
{
    QString html = m_rowBegin;
    for (const TableColumn column : m_cells.Columns()) {
        const TableCell cell = m_cells.Cell(row, column);
        const QString text = cell.pieces.isEmpty() ? m_empty : CellText(cell);
        html += CellMarkup(cell.bold ? m_bold.Filled({text}) : text, cell.special, column);
    }
    return InLatin1(html + m_rowEnd);
}

QString CHtmlTableWriter::CellText(const TableCell &cell) const
{
    QString html;
    for (const CellPiece &piece : cell.pieces) {
        switch (piece.kind) {
        case CellPiece::Kind::Text:
            AppendEscaped(html, piece.text);
            break;
        case CellPiece::Kind::LineBreak:
            html += QStringLiteral("<br>");
            break;
        case CellPiece::Kind::CommentBegin:
            html += CommentMark(true);
            break;
        case CellPiece::Kind::CommentEnd:
            html += CommentMark(false);
            break;
        }
    }
    return html;
}

QString CHtmlTableWriter::CellMarkup(const QString &text, bool special, TableColumn column) const
{
    return m_cell.Filled(
        {special ? m_special : QString(), column == TableColumn::Number ? QString() : m_width, text});
}

QStringView CHtmlTableWriter::CommentMark(bool begins) const
{
    const bool brackets = CommentStyle(m_cells.Options().italicComments) == CommentStyle::ItalicInBrackets;
    return m_commentMarks[size_t(brackets ? 2 : 0) + size_t(begins ? 0 : 1)];
}

}

std::unique_ptr<ITableWriter> MakeHtmlTableWriter(CTableCells cells, const CTexts &texts)
{
    return std::make_unique<CHtmlTableWriter>(std::move(cells), texts);
}
