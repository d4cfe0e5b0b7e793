// SPDX-License-Identifier: MIT
// How a page of a table is painted.
#include "resources/texts.h"
#include "tools/ui/laid_out_text.h"
#include "tools/ui/table_page_measures.h"

#include <QPainter>

#include <algorithm>

using namespace TablePage;

namespace {

QColor ColorOf(quint32 value)
{
    return {int(value & 0xFFU), int(value >> 8U & 0xFFU), int(value >> 16U & 0xFFU)};
}

}

void CTablePages::Paint(QPainter &painter, int page) const
{
    const Start start = m_starts[size_t(page)];
    const bool isLast = size_t(page) + 1 == m_starts.size();
    const Start end = isLast ? Start{SummaryItem() + 1, 0} : m_starts[size_t(page) + 1];
    const CreateTableSettings &options = m_cells.Options();
    const QColor background = ColorOf(options.colorBackground);
    painter.save();
    if (background != Qt::white) {
        painter.fillRect(QRect(QPoint(), PaperSize()), background);
    }
    painter.setPen(ColorOf(options.colorText));

    qreal y = Top();
    const qreal tableTop = y;
    if (start.item == 0 && options.showTitle) {
        const CLaidOutText title = TitleText(TableWidth());
        const qreal height = ItemHeight(0, title.LineCount());
        if (options.setTableBackground) {
            painter.fillRect(QRectF(Left(), y, TableWidth(), height), ColorOf(options.colorTableBackground));
        }
        title.Draw(painter, {Left(), y + PadY}, 0, title.LineCount(), m_titleLineHeight);
        y += height;
    }
    if (start.item < SummaryItem()) {
        y = PaintHeadings(painter, y);
    }
    int item = std::max(1, start.item);
    for (; item < SummaryItem() && (item < end.item || (item == end.item && end.line > 0)); ++item) {
        const int first = item == start.item ? start.line : 0;
        const bool isEnd = item != end.item;
        const int lines = (isEnd ? RowLines(item - 1) : end.line) - first;
        PaintRow(painter, item - 1, y, first, lines, isEnd);
        y += ItemHeight(item, lines);
    }
    if (start.item < SummaryItem()) {
        PaintFrame(painter, tableTop, y);
    }
    if (item == SummaryItem() && (item < end.item || end.line > 0)) {
        const CLaidOutText summary = SummaryText();
        const int first = item == start.item ? start.line : 0;
        const int last = item < end.item ? summary.LineCount() : end.line;
        const qreal gap = item == start.item ? 0 : m_outline;
        summary.Draw(painter, {Left(), y + gap + PadY}, first, last - first, m_lineHeight);
    }
    PaintNumber(painter, page);
    painter.restore();
}

void CTablePages::PaintRow(QPainter &painter, int row, qreal top, int firstLine, int lines, bool isEnd) const
{
    const CreateTableSettings &options = m_cells.Options();
    const qreal height = ItemHeight(row + 1, lines);
    qreal left = Left();
    for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
        const TableColumn column = m_cells.Columns().at(i);
        const qreal width = m_widths[size_t(i)];
        const QRectF place(left, top, width, height);
        const TableCell cell = m_cells.Cell(row, column);
        if (cell.special || options.setTableBackground) {
            painter.fillRect(
                place, ColorOf(cell.special ? options.colorSpecial : options.colorTableBackground));
        }
        if (IsEmptyColumn(column)) {
            if (isEnd) {
                const qreal line = place.bottom() - PadY;
                painter.setPen(QPen(ColorOf(options.colorText), 4));
                painter.drawLine(QPointF(left + PadX, line), QPointF(place.right() - PadX, line));
                painter.setPen(ColorOf(options.colorText));
            }
        } else {
            CellText(row, column, width - 2 * PadX)
                .Draw(painter, {left + PadX, top + PadY}, firstLine, lines, m_lineHeight);
        }
        left += width;
    }
    PaintGrid(painter, top, height);
}

qreal CTablePages::PaintHeadings(QPainter &painter, qreal top) const
{
    const CreateTableSettings &options = m_cells.Options();
    if (options.setTableBackground) {
        painter.fillRect(
            QRectF(Left(), top, TableWidth(), m_headingHeight), ColorOf(options.colorTableBackground));
    }
    qreal left = Left();
    for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
        const CLaidOutText text = HeadingText(m_cells.Columns().at(i), m_widths[size_t(i)] - 2 * PadX);
        text.Draw(painter, {left + PadX, top + PadY}, 0, text.LineCount(), m_lineHeight);
        left += m_widths[size_t(i)];
    }
    const qreal bottom = top + m_headingHeight;
    if (options.border == 0) {
        painter.setPen(QPen(ColorOf(options.colorText), 5));
        painter.drawLine(QPointF(Left(), bottom), QPointF(Left() + TableWidth(), bottom));
        painter.setPen(ColorOf(options.colorText));
    }
    PaintGrid(painter, top, m_headingHeight);
    return bottom;
}

void CTablePages::PaintGrid(QPainter &painter, qreal top, qreal height) const
{
    if (m_cells.Options().border == 0) {
        return;
    }
    const QPen pen = painter.pen();
    painter.setPen(QPen(pen.color(), BorderPixel));
    qreal left = Left();
    for (const qreal width : m_widths) {
        painter.drawRect(QRectF(left, top, width, height));
        left += width;
    }
    painter.setPen(pen);
}

void CTablePages::PaintFrame(QPainter &painter, qreal top, qreal bottom) const
{
    if (m_outline > 0) {
        const qreal half = m_outline / 2;
        const QPen pen = painter.pen();
        QPen frame(pen.color(), m_outline);
        frame.setJoinStyle(Qt::MiterJoin);
        painter.setPen(frame);
        painter.drawRect(QRectF(QPointF(Left(), top), QPointF(Left() + TableWidth(), bottom))
                             .adjusted(-half, -half, half, half));
        painter.setPen(pen);
    }
}

void CTablePages::PaintNumber(QPainter &painter, int page) const
{
    const QString text =
        FillText(m_pageNumber, {QString::number(page + 1), QString::number(PageCount())}, FilledFor::Storage);
    const qreal width = PaperSize().width() - 2 * Margin;
    CLaidOutText(text, m_font, width, Qt::AlignHCenter)
        .Draw(painter, {Margin, PaperSize().height() - Margin - m_lineHeight}, 0, 1, m_lineHeight);
}
