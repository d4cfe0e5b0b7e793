// SPDX-License-Identifier: MIT
#include "tools/ui/table_pages.h"

#include "platform/plain_text.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"
#include "tools/ui/laid_out_text.h"
#include "tools/ui/table_page_measures.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace TablePage;

namespace {

/// A row to write in by hand, and the least width for it.
constexpr qreal WritingHeight = 9 * Millimetre;
constexpr qreal WritingWidth = 40 * Millimetre;
constexpr qreal TitleSize = 1.4;
/// Of headings and the title, which must leave room for rows.
constexpr qsizetype LongestHeading = 200;
constexpr int MostRowsAtATime = 100;
/// The fewest lines of a row that a page may end with.
constexpr int FewestLines = 3;

QFont PageFont(QFont font, qreal points)
{
    font.setPixelSize(int(std::lround(points / 72 * CTablePages::UnitsPerInch)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}

CTablePages::CTablePages(CTableCells cells, const QPageLayout &paper, const QFont &font, const CTexts &texts)
    : m_cells(std::move(cells)), m_paper(paper), m_font(PageFont(font, 10)),
      m_titleFont(PageFont(font, 10 * TitleSize)), m_pageNumber(texts.Get(Text::TablePageOf)),
      m_lineHeight(std::ceil(QFontMetricsF(m_font).lineSpacing() * 1.05)),
      m_titleLineHeight(m_lineHeight * TitleSize), m_outline(m_cells.Options().border * BorderPixel),
      m_hasEmptyColumn(std::ranges::any_of(m_cells.Columns(), IsEmptyColumn)),
      m_widths(size_t(m_cells.Columns().size()), 0)
{
    m_paper.setMode(QPageLayout::FullPageMode);
    for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
        Widen(i, HeadingText(m_cells.Columns().at(i), CLaidOutText::Unbounded).NaturalWidth());
        if (IsEmptyColumn(m_cells.Columns().at(i))) {
            Widen(i, WritingWidth);
        }
    }
}

qreal CTablePages::Top() const
{
    return Margin + m_outline;
}

qreal CTablePages::Bottom() const
{
    return PaperSize().height() - Margin - 2 * m_lineHeight - m_outline;
}

qreal CTablePages::AvailableWidth() const
{
    return PaperSize().width() - 2 * (Margin + m_outline);
}

qreal CTablePages::TableWidth() const
{
    return std::accumulate(m_widths.begin(), m_widths.end(), qreal(0));
}

CLaidOutText CTablePages::CellText(int row, TableColumn column, qreal width) const
{
    return {m_cells.Cell(row, column), CommentStyle(m_cells.Options().italicComments), m_font, width};
}

CLaidOutText CTablePages::HeadingText(TableColumn column, qreal width) const
{
    return {ShownShort(OneLine(m_cells.Heading(column)), LongestHeading), m_font, width};
}

CLaidOutText CTablePages::TitleText(qreal width) const
{
    return {ShownShort(OneLine(m_cells.Options().title), LongestHeading), m_titleFont, width, Qt::AlignHCenter};
}

CLaidOutText CTablePages::SummaryText() const
{
    QString text = m_cells.Summary();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\n', QChar(QChar::LineSeparator));
    return {text, m_font, AvailableWidth()};
}

void CTablePages::LayOutMore()
{
    switch (m_step) {
    case Step::Measuring:
        MeasureRows(MostRowsAtATime);
        break;
    case Step::Breaking:
        BreakItems(MostRowsAtATime);
        break;
    case Step::Ready:
        break;
    }
}

int CTablePages::PercentDone() const
{
    const qint64 rows = std::max(1, m_cells.RowCount());
    const qint64 done = m_step == Step::Measuring ? m_next : rows + std::min<qint64>(m_next, rows);
    return IsReady() ? 100 : int(done * 100 / (2 * rows));
}

int CTablePages::RowLines(int row) const
{
    int lines = 1;
    for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
        const TableColumn column = m_cells.Columns().at(i);
        if (!IsEmptyColumn(column)) {
            lines = std::max(lines, CellText(row, column, m_widths[size_t(i)] - 2 * PadX).LineCount());
        }
    }
    return lines;
}

qreal CTablePages::ItemHeight(int item, int lines) const
{
    if (item == 0) {
        return lines * m_titleLineHeight + 2 * PadY;
    }
    const qreal height = lines * m_lineHeight + 2 * PadY;
    return IsRow(item) && m_hasEmptyColumn ? std::max(height, WritingHeight) : height;
}

void CTablePages::BreakItems(int count)
{
    for (int i = 0; i < count && m_step == Step::Breaking; ++i) {
        const int item = m_next++;
        if (item == 0) {
            // The title and the headings below it, which the first page always has room for.
            m_y += (m_cells.Options().showTitle ? ItemHeight(0, TitleText(TableWidth()).LineCount()) : 0)
                + m_headingHeight;
        } else if (IsRow(item)) {
            PlaceItem(item, RowLines(item - 1));
        } else {
            m_y += m_outline;
            PlaceItem(item, SummaryText().LineCount());
            m_step = Step::Ready;
        }
    }
}

void CTablePages::PlaceItem(int item, int lines)
{
    for (int line = 0;;) {
        const qreal height = ItemHeight(item, lines - line);
        const qreal top = TopBelowHeadings(item);
        if (m_y + height <= Bottom()) {
            m_y += height;
            return;
        }
        const int fitting = int((Bottom() - m_y - 2 * PadY) / m_lineHeight);
        const bool isFresh = m_y <= top;
        if (!isFresh && (top + height <= Bottom() || fitting < FewestLines)) {
            BeginPage({item, line});
            continue;
        }
        line += std::clamp(fitting, 1, std::max(1, lines - line - 1));
        BeginPage({item, line});
        if (line >= lines) {
            return; // Not even one line finds room below such headings.
        }
    }
}

void CTablePages::BeginPage(Start start)
{
    m_starts.push_back(start);
    m_y = TopBelowHeadings(start.item);
}
