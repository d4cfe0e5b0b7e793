// SPDX-License-Identifier: MIT
#include "platform/ui/elided_label.h"

#include "platform/plain_text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

CElidedLabel::CElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void CElidedLabel::ShowText(const QString &text)
{
    setText(ShownShort(text));
}

void CElidedLabel::AskForRoom(int mostCharacters)
{
    m_mostCharacters = mostCharacters;
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize CElidedLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int wanted = fontMetrics().size(ShownFlags(), Shown()).width() + margins.left() + margins.right();
    return {std::min(wanted, fontMetrics().averageCharWidth() * m_mostCharacters), minimumSizeHint().height()};
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

int CElidedLabel::ShownFlags() const
{
    if (buddy() == nullptr) {
        return Qt::TextSingleLine;
    }
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    return int(Qt::TextSingleLine) | int(underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

bool CElidedLabel::Fits() const
{
    return fontMetrics().size(ShownFlags(), Shown()).width() <= contentsRect().width();
}

void CElidedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const QString shown =
        fontMetrics().elidedText(Shown(), Qt::ElideRight, contentsRect().width(), ShownFlags());
    style()->drawItemText(&painter, contentsRect(), int(alignment()) | ShownFlags(), palette(), isEnabled(),
        shown, foregroundRole());
}

bool CElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !Fits()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
            buddy() == nullptr ? Shown() : CaptionReadOut(Shown()), this);
        return true;
    }
    return QLabel::event(event);
}
