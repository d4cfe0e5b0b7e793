// SPDX-License-Identifier: MIT
#include "platform/ui/elided_label.h"

#include "platform/plain_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

CElidedLabel::CElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void CElidedLabel::setText(const QString &text)
{
    QLabel::setText(ShownShort(text));
}

QSize CElidedLabel::sizeHint() const
{
    return minimumSizeHint();
}

QSize CElidedLabel::minimumSizeHint() const
{
    // Not by the text, which may be endless.
    const QMargins margins = contentsMargins();
    return {0, fontMetrics().height() + margins.top() + margins.bottom()};
}

QString CElidedLabel::Shown() const
{
    return Isolated(text());
}

bool CElidedLabel::Fits() const
{
    return fontMetrics().horizontalAdvance(Shown()) <= contentsRect().width();
}

void CElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(Shown(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(
        &painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

bool CElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !Fits()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Shown(), this);
        return true;
    }
    return QLabel::event(event);
}
