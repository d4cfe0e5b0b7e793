// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_cells.h"

#include <QFont>
#include <QPageLayout>
#include <QRect>

#include <vector>

class CTexts;
class CLaidOutText;
class QPainter;

/// A table laid out on pages, each with the headings on top: a page ends between two rows, or within one that
/// is longer than a page. Keeps only where each page begins, so it has room for any list; a page is laid out
/// again when it is painted. Belongs to the thread of the windows.
class CTablePages
{
public:
    /// Of all measures here; a page can be painted at any other resolution.
    static constexpr int UnitsPerInch = 720;

    /// The margins of the paper are those of the pages, not of the paper's layout.
    CTablePages(CTableCells cells, const QPageLayout &paper, const QFont &font, const CTexts &texts);

    const QPageLayout &Paper() const { return m_paper; }
    QSize PaperSize() const { return m_paper.fullRectPixels(UnitsPerInch).size(); }
    bool IsReady() const { return m_step == Step::Ready; }
    /// Goes on for some rows; until all is ready PageCount() may grow.
    void LayOutMore();
    /// How much of the laying out is done, in percent.
    int PercentDone() const;
    int PageCount() const { return int(m_starts.size()); }
    /// Paints a page, from 0, with the corner of the paper at the origin. The painter has our units.
    void Paint(QPainter &painter, int page) const;

private:
    enum class Step { Measuring, Breaking, Ready };

    /// Where a page begins: the title is item 0, then come the rows, and the summary is behind them.
    struct Start
    {
        int item = 0;
        int line = 0;
    };

    int SummaryItem() const { return m_cells.RowCount() + 1; }
    bool IsRow(int item) const { return item > 0 && item < SummaryItem(); }

    void MeasureRows(int count);
    void DivideWidth();
    /// A title on one line makes a narrow table wider.
    void MakeRoomForTitle();
    void BreakItems(int count);
    void PlaceItem(int item, int lines);
    void BeginPage(Start start);
    qreal Left() const { return Top(); }
    qreal Top() const;
    qreal Bottom() const;
    qreal TopBelowHeadings(int item) const { return Top() + (IsRow(item) ? m_headingHeight : 0); }
    qreal ItemHeight(int item, int lines) const;

    qreal AvailableWidth() const;
    qreal TableWidth() const;
    /// Gives a column room for a text of that width.
    void Widen(qsizetype column, qreal width);
    CLaidOutText CellText(int row, TableColumn column, qreal width) const;
    CLaidOutText HeadingText(TableColumn column, qreal width) const;
    CLaidOutText TitleText(qreal width) const;
    CLaidOutText SummaryText() const;
    int RowLines(int row) const;

    void PaintRow(QPainter &painter, int row, qreal top, int firstLine, int lines, bool isEnd) const;
    qreal PaintHeadings(QPainter &painter, qreal top) const;
    void PaintGrid(QPainter &painter, qreal top, qreal height) const;
    void PaintFrame(QPainter &painter, qreal top, qreal bottom) const;
    void PaintNumber(QPainter &painter, int page) const;

    CTableCells m_cells;
    QPageLayout m_paper;
    QFont m_font;
    QFont m_titleFont;
    QString m_pageNumber; // With places for the page and their number.
    qreal m_lineHeight = 0;
    qreal m_titleLineHeight = 0;
    qreal m_headingHeight = 0;
    qreal m_outline = 0; // The width of the frame around the table.
    bool m_hasEmptyColumn = false;
    std::vector<qreal> m_widths; // Of the columns.

    Step m_step = Step::Measuring;
    int m_next = 0; // The row to be measured, or the item to be placed.
    qreal m_y = 0; // Where the next item goes.
    std::vector<Start> m_starts;
};
