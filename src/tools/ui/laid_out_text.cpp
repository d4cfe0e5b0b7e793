// SPDX-License-Identifier: MIT
#include "tools/ui/laid_out_text.h"

#include "platform/plain_text.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

CLaidOutText::CLaidOutText(const QString &text, const QFont &font, qreal width, Qt::Alignment alignment)
{
    LayOut(ShownShort(text, MostLaidOut), {}, font, width, alignment);
}

CLaidOutText::CLaidOutText(const TableCell &cell, CommentStyle comments, const QFont &font, qreal width)
{
    const bool brackets = comments == CommentStyle::ItalicInBrackets;
    QString text;
    QList<QTextLayout::FormatRange> italics;
    int depth = 0;
    qsizetype italicBegin = 0;
    const auto endItalic = [&] {
        QTextLayout::FormatRange range{int(italicBegin), int(text.size() - italicBegin), {}};
        range.format.setFontItalic(true);
        italics.append(range);
    };
    for (const CellPiece &piece : cell.pieces) {
        if (text.size() > MostLaidOut) {
            break;
        }
        switch (piece.kind) {
        case CellPiece::Kind::Text:
            text += ShownShort(piece.text, MostLaidOut);
            break;
        case CellPiece::Kind::LineBreak:
            text += QChar(QChar::LineSeparator);
            break;
        case CellPiece::Kind::CommentBegin:
            if (depth++ == 0) {
                italicBegin = text.size();
            }
            text += brackets ? QStringLiteral("(") : QString();
            break;
        case CellPiece::Kind::CommentEnd:
            text += brackets ? QStringLiteral(")") : QString();
            if (depth > 0 && --depth == 0) {
                endItalic();
            }
            break;
        }
    }
    if (depth > 0) {
        endItalic();
    }
    QFont cellFont = font;
    cellFont.setBold(cell.bold);
    LayOut(text, italics, cellFont, width, Qt::AlignLeft);
}

void CLaidOutText::LayOut(const QString &text, const QList<QTextLayout::FormatRange> &formats,
    const QFont &font, qreal width, Qt::Alignment alignment)
{
    m_layout = std::make_unique<QTextLayout>(text, font);
    m_layout->setFormats(formats);
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // Each text runs in its own direction, from the left edge of its cell all the same.
    option.setTextDirection(m_layout->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(alignment | Qt::AlignAbsolute);
    m_layout->setTextOption(option);
    m_layout->setCacheEnabled(true);
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine()) {
        line.setLineWidth(width);
    }
    m_layout->endLayout();
}

qreal CLaidOutText::NaturalWidth() const
{
    qreal widest = 0;
    for (int i = 0; i < LineCount(); ++i) {
        widest = std::max(widest, m_layout->lineAt(i).naturalTextWidth());
    }
    return widest;
}

void CLaidOutText::Draw(QPainter &painter, QPointF at, int first, int count, qreal lineHeight) const
{
    // On one grid, whatever other fonts a line needs: neighbouring cells then break at the same place.
    const qreal ascent = QFontMetricsF(m_layout->font()).ascent();
    for (int i = first; i < std::min(first + count, LineCount()); ++i) {
        const QTextLine line = m_layout->lineAt(i);
        const qreal top = at.y() + (i - first) * lineHeight + ascent - line.ascent();
        line.draw(&painter, QPointF(at.x(), top) - line.position());
    }
}
