// SPDX-License-Identifier: MIT
#include "editor/ui/marked_line.h"

#include "platform/plain_text.h"

#include <QPainter>
#include <QTextLayout>

void DrawMarkedLine(
    QPainter &painter, const QRect &room, const MarkedText &marked, const QTextCharFormat &format)
{
    QFont bold = painter.font();
    bold.setBold(true);
    const QFontMetrics metrics = painter.fontMetrics();
    const QString mark = ShownShort(marked.text.mid(marked.start, marked.length));
    const int broader = QFontMetrics(bold).horizontalAdvance(mark) - metrics.horizontalAdvance(mark);
    MarkedText line = WithMarkInSight(
        marked, [&](const QString &text) { return metrics.horizontalAdvance(text) + broader <= room.width(); });

    line.text.replace(QChar::LineSeparator, u' ').replace(QChar::ParagraphSeparator, u' ');
    QTextLayout::FormatRange range = {int(line.start), int(line.length), format};
    range.format.setFontWeight(QFont::Bold);
    QTextLayout layout(line.text, painter.font());
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    layout.setTextOption(option);
    layout.setFormats({range});
    layout.beginLayout();
    QTextLine shown = layout.createLine();
    shown.setLineWidth(room.width());
    layout.endLayout();
    painter.save();
    painter.setClipRect(room);
    // On the line of the texts beside it.
    const int top = room.top() + (room.height() - metrics.height()) / 2;
    layout.draw(&painter, QPointF(room.left(), top + metrics.ascent() - shown.ascent()));
    painter.restore();
}
