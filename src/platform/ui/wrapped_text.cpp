// SPDX-License-Identifier: MIT
#include "platform/ui/wrapped_text.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>
#include <functional>

namespace {

/// Lays a text out line by line and returns its height. `line` gets each line, and what is above it.
qreal LayOut(const QString &text, const QFont &font, int width,
    const std::function<void(const QTextLine &line, qreal top)> &line = {},
    Qt::Alignment alignment = Qt::AlignLeading)
{
    qreal top = 0;
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (const QString &paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine next = layout.createLine(); next.isValid(); next = layout.createLine()) {
            next.setLineWidth(width);
            if (line) {
                line(next, top);
            }
            top += next.height();
        }
        layout.endLayout();
    }
    return top;
}

}

int WrappedHeight(const QString &text, const QFont &font, int width)
{
    return int(std::ceil(LayOut(text, font, width)));
}

void PaintWrapped(
    QPainter &painter, const QString &text, const QFont &font, const QRect &place, Qt::Alignment alignment)
{
    LayOut(
        text, font, place.width(),
        [&](const QTextLine &line, qreal top) {
            line.draw(&painter, {qreal(place.left()), place.top() + top - line.y()});
        },
        alignment);
}

int NaturalWidth(const QString &text, const QFont &font, int most)
{
    int width = 0;
    LayOut(text, font, most, [&width](const QTextLine &line, qreal /*top*/) {
        width = std::max(width, int(std::ceil(line.naturalTextWidth())) + 1);
    });
    return std::min(width, most);
}

CWrappedText::CWrappedText(const QString &text, QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    ShowText(text);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CWrappedText::ShowText(const QString &text)
{
    setText(QString(text).remove(u'\r'));
}

QSize CWrappedText::sizeHint() const
{
    constexpr int Letters = 70; // A line of this length is read easily.
    const int width = NaturalWidth(text(), font(), fontMetrics().averageCharWidth() * Letters);
    return {width, heightForWidth(width)};
}

QSize CWrappedText::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()};
}

int CWrappedText::heightForWidth(int width) const
{
    return WrappedHeight(text(), font(), std::max(width, 1));
}

void CWrappedText::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    PaintWrapped(painter, text(), font(), rect());
}
