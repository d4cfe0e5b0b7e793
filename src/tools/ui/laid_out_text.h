// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_cells.h"

#include <QTextLayout>

#include <memory>

/// A text in lines of equal height and of a width, for a page. Only the start of a very long one is laid out.
class CLaidOutText
{
public:
    /// Code units; some pages of text.
    static constexpr qsizetype MostLaidOut = 20000;
    /// A width for texts that need not be broken.
    static constexpr qreal Unbounded = 1e6;

    CLaidOutText(const QString &text, const QFont &font, qreal width, Qt::Alignment alignment = Qt::AlignLeft);
    CLaidOutText(const TableCell &cell, CommentStyle comments, const QFont &font, qreal width);

    int LineCount() const { return m_layout->lineCount(); }
    qreal NaturalWidth() const;
    /// Lines from `first` on, the first of them at `at`.
    void Draw(QPainter &painter, QPointF at, int first, int count, qreal lineHeight) const;

private:
    void LayOut(const QString &text, const QList<QTextLayout::FormatRange> &formats, const QFont &font,
        qreal width, Qt::Alignment alignment);

    std::unique_ptr<QTextLayout> m_layout;
};
