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

QSize CElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

bool CElidedLabel::Fits() const
{
    return fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
}

void CElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(
        &painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

bool CElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !Fits()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), ShownAsPlainText(text()), this);
        return true;
    }
    return QLabel::event(event);
}
