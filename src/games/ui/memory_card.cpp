// SPDX-License-Identifier: MIT
#include "games/ui/memory_card.h"

#include "platform/plain_text.h"
#include "platform/ui/contrast.h"
#include "platform/ui/reduced_motion.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int TurningTime = 220; // Milliseconds.
constexpr int Margin = 4; // For the frame of the focus.
constexpr int Corner = 9;
constexpr int UsualLines = 7;
constexpr double LargestText = 1.75; // Of the window's letters, on a card of usual height.
constexpr double LargestTextOfAll = 3;

/// Black or white, whatever can be read better on a colour.
QColor inkOn(const QColor &colour)
{
    return Contrast(Qt::black, colour) >= Contrast(Qt::white, colour) ? Qt::black : Qt::white;
}

}

CMemoryCard::CMemoryCard(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::ClickFocus);
    m_turning.setStartValue(0.0);
    m_turning.setEndValue(1.0);
    m_turning.setDuration(TurningTime);
    connect(&m_turning, &QVariantAnimation::valueChanged, this, [this] { update(); });
}

QSize CMemoryCard::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().lineSpacing() * UsualLines};
}

QSize CMemoryCard::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().lineSpacing() * 2 + 4 * Margin};
}

void CMemoryCard::showLook(const Look &look, bool isNew)
{
    const bool turns = !isNew && look.isUp != m_look.isUp && isVisible() && !WantsReducedMotion(*this);
    m_look = look;
    fitText();
    m_turning.stop();
    if (turns) {
        m_turning.start();
    }
    update();
}

QRect CMemoryCard::faceText() const
{
    const int space = Margin + Corner;
    return rect().adjusted(space, Margin + 3, -space, -Margin - 3);
}

void CMemoryCard::fitText()
{
    const double usual = double(height()) / (fontMetrics().lineSpacing() * UsualLines);
    const double largest = std::clamp(LargestText * usual, LargestText, LargestTextOfAll);
    m_fitted = FitText(m_look.text, font(), largest, faceText().size());
    setToolTip(m_fitted.isWhole ? QString() : ShownShort(m_look.text));
}

void CMemoryCard::resizeEvent(QResizeEvent *event)
{
    QAbstractButton::resizeEvent(event);
    fitText();
}

void CMemoryCard::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fitText();
    }
}

QColor CMemoryCard::backColour() const
{
    const QColor own = palette().color(QPalette::Highlight);
    if (m_look.isQuestion) {
        return own;
    }
    // Another hue of the same strength; a grey has none.
    const int hue = own.hslHue() < 0 ? 30 : (own.hslHue() + 190) % 360;
    return QColor::fromHsl(hue, std::max(own.hslSaturation() * 7 / 8, 40), own.lightness());
}

void CMemoryCard::paintBack(QPainter &painter, const QRect &card) const
{
    const QColor colour = backColour();
    QLinearGradient shine(card.topLeft(), card.bottomLeft());
    shine.setColorAt(0, colour.lighter(112));
    shine.setColorAt(1, colour);
    painter.setPen(QPen(Mixed(colour, palette().color(QPalette::WindowText), 0.4), 1));
    painter.setBrush(shine);
    painter.drawRoundedRect(QRectF(card).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    const QColor ink = inkOn(colour);
    QRect sign = faceText();
    painter.setPen(ink);
    const bool hasRoom = !m_look.language.isEmpty() && sign.height() >= fontMetrics().lineSpacing() * 3;
    if (hasRoom) {
        QRect name = sign;
        name.setTop(sign.bottom() + 1 - fontMetrics().lineSpacing());
        sign.setBottom(name.top() - 1);
        painter.setFont(font());
        painter.drawText(name, Qt::AlignCenter | Qt::TextSingleLine,
            fontMetrics().elidedText(OneLine(ShownShort(m_look.language)), Qt::ElideRight, name.width()));
    }
    QFont large = font();
    large.setBold(true);
    large.setPixelSize(
        std::clamp(sign.height() * 3 / 4, fontMetrics().height() * 2 / 3, fontMetrics().height() * 6));
    painter.setFont(large);
    painter.drawText(sign, Qt::AlignCenter, m_look.sign);
}

void CMemoryCard::paintMark(QPainter &painter, const char *picture) const
{
    const int size = std::min(fontMetrics().height(), height() / 4);
    const QIcon icon(QString::fromLatin1(picture));
    icon.paint(&painter, QRect(width() - Margin - size - 4, Margin + 4, size, size));
}

void CMemoryCard::paintFace(QPainter &painter, const QRect &card) const
{
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QColor edge = MarkColour(backColour(), text, base);
    painter.setPen(QPen(m_look.isSolved ? Mixed(text, base, 0.6) : edge, m_look.isSolved ? 1 : 2));
    painter.setBrush(m_look.isSolved ? Mixed(base, palette().color(QPalette::Window), 0.7) : base);
    painter.drawRoundedRect(QRectF(card).adjusted(1, 1, -1, -1), Corner, Corner);
    if (m_look.isSolved || m_look.isMistake) {
        paintMark(painter, m_look.isSolved ? ":/pictures/right.svg" : ":/pictures/wrong.svg");
    }
    painter.setPen(text);
    DrawFitted(painter, m_fitted, faceText());
}

void CMemoryCard::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool turns = m_turning.state() == QAbstractAnimation::Running;
    const double turned = turns ? m_turning.currentValue().toDouble() : 1;
    painter.save();
    painter.translate(QRectF(rect()).center());
    painter.scale(std::max(std::abs(std::cos(turned * std::numbers::pi)), 0.02), 1);
    painter.translate(-QRectF(rect()).center());
    const QRect card = rect().adjusted(Margin, Margin, -Margin, -Margin);
    // In the first half of the way the other side is still in view.
    if (m_look.isUp == (turned >= 0.5)) {
        paintFace(painter, card);
    } else {
        paintBack(painter, card);
    }
    painter.restore();
    if (hasFocus()) {
        const QColor ink = palette().color(QPalette::WindowText);
        painter.setPen(QPen(ink, 2.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), Corner + 2, Corner + 2);
    }
}

void CMemoryCard::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    if (arrow) {
        event->ignore(); // It is for the board.
    } else if (!enter) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        click();
    }
}

void CMemoryCard::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    // Its first click has turned the card; the second must not close it again.
}
