// SPDX-License-Identifier: MIT
#include "games/ui/play_field.h"

#include "platform/plain_text.h"
#include "platform/ui/contrast.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using std::chrono::milliseconds;

namespace {

constexpr double LargestWord = 1.75; // Of the window's letters, in a field of usual height.
constexpr double LargestWordOfAll = 3;
constexpr int UsualLines = 24;
constexpr double LargestLine = 1.25;
constexpr double WidestWord = 0.6; // Of the field's width.
constexpr double HighestWord = 0.5; // Of the field's height.
constexpr int Padding = 10; // Around the word on its tile.
constexpr int Corner = 8;
constexpr milliseconds EffectTime{350};
constexpr double Growth = 0.25; // Of a word that was hit, on each side.

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

}

CPlayField::CPlayField(const QString &pausedText, QWidget *parent) : QWidget(parent), m_pausedText(pausedText)
{
    setObjectName(QStringLiteral("playField"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize CPlayField::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 96, fontMetrics().lineSpacing() * 34};
}

QSize CPlayField::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().lineSpacing() * 7};
}

int CPlayField::floorHeight() const
{
    return std::max(fontMetrics().height() / 2, 6);
}

void CPlayField::showWord(const QString &text, bool isPaused)
{
    if (text == m_text && isPaused == m_isPaused) {
        return;
    }
    m_text = text;
    m_isPaused = isPaused;
    makeWord();
    update();
}

void CPlayField::makeWord()
{
    m_word = {};
    if (m_text.isEmpty()) {
        return;
    }
    const QSize room(int(width() * WidestWord) - 2 * Padding, int(height() * HighestWord) - 2 * Padding);
    const double usual = double(height()) / (fontMetrics().lineSpacing() * UsualLines);
    const double factor = std::clamp(LargestWord * usual, LargestWord, LargestWordOfAll);
    const FittedText fitted = FitText(m_text, font(), factor, room);
    const QSize text = SizeOf(fitted, room);
    const QSize size = text + QSize(2 * Padding, 2 * Padding);
    m_word = QPixmap(size * devicePixelRatioF());
    m_word.setDevicePixelRatio(devicePixelRatioF());
    m_word.fill(Qt::transparent);
    QPainter painter(&m_word);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge = MarkColour(
        palette().color(QPalette::Highlight), palette().color(QPalette::Text), palette().color(QPalette::Base));
    painter.setPen(QPen(edge, 2));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF({}, size).adjusted(1, 1, -1, -1), Corner, Corner);
    painter.setPen(palette().color(QPalette::Text));
    DrawFitted(painter, fitted, QRect(QPoint(Padding, Padding), text));
}

double CPlayField::fallDistance() const
{
    const double word = m_word.isNull() ? 0 : m_word.deviceIndependentSize().height();
    return std::max(height() - floorHeight() - word, 1.0);
}

QPointF CPlayField::wordPoint() const
{
    if (m_word.isNull()) {
        return {};
    }
    // On whole pixels of the screen, where letters stay sharp.
    const double ratio = devicePixelRatioF();
    const double room = std::max(width() - m_word.deviceIndependentSize().width(), 0.0);
    return {std::floor(m_place * room * ratio) / ratio, std::floor(m_fallen * fallDistance() * ratio) / ratio};
}

QRect CPlayField::wordPlace() const
{
    return m_word.isNull() ? QRect() : QRectF(wordPoint(), m_word.deviceIndependentSize()).toAlignedRect();
}

void CPlayField::placeWord(double place, double fallen)
{
    const QRect before = wordPlace();
    const QPointF point = wordPoint();
    m_place = place;
    m_fallen = fallen;
    if (wordPoint() != point) {
        update(before);
        update(wordPlace());
    }
}

void CPlayField::showLine(const QString &line, const QString &hint)
{
    if (line != m_line || hint != m_hint) {
        m_line = line;
        m_hint = hint;
        setAccessibleDescription(ShownShort(line));
        layOutLine();
    }
}

void CPlayField::layOutLine()
{
    update(m_linePlace);
    m_linePlace = {};
    if (!m_line.isEmpty()) {
        const QSize room(width() - 4 * Padding, height() / 2);
        m_fittedLine = FitText(m_line, font(), LargestLine, room);
        const int hintWidth = m_hint.isEmpty() ? 0 : fontMetrics().horizontalAdvance(m_hint);
        const int hintHeight = m_hint.isEmpty() ? 0 : fontMetrics().lineSpacing();
        const QSize text = SizeOf(m_fittedLine, room);
        m_linePlace.setSize(
            {std::max(text.width(), hintWidth) + 2 * Padding, text.height() + hintHeight + 2 * Padding});
        m_linePlace.moveCenter({width() / 2, 0});
        m_linePlace.moveBottom(height() - floorHeight() - Padding);
    }
    update(m_linePlace);
}

void CPlayField::playEffect(Effect effect)
{
    if (!m_word.isNull()) {
        m_effects.push_back({effect, m_word, wordPlace()});
    }
}

QRect CPlayField::flashPlace(const Flash &flash) const
{
    if (flash.effect == Effect::Miss) {
        return {0, height() - floorHeight(), width(), floorHeight()};
    }
    const int growth = int(std::ceil(flash.place.width() * Growth)) + 2;
    return flash.place.adjusted(-growth, -growth, growth, growth);
}

void CPlayField::timePassed(milliseconds time)
{
    for (Flash &flash : m_effects) {
        flash.age += time;
        update(flashPlace(flash));
    }
    std::erase_if(m_effects, [](const Flash &flash) { return flash.age >= EffectTime; });
}

QColor CPlayField::effectColour(Effect effect) const
{
    if (effect == Effect::Hit) {
        return isDark(palette()) ? QColor(0x81, 0xe0, 0x8c) : QColor(0x00, 0x69, 0x1c);
    }
    return isDark(palette()) ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
}

void CPlayField::paintFlash(QPainter &painter, const Flash &flash) const
{
    const double share = std::min(double(flash.age.count()) / double(EffectTime.count()), 1.0);
    painter.save();
    painter.setOpacity(1 - share);
    const QColor colour = effectColour(flash.effect);
    if (flash.effect == Effect::Miss) {
        painter.fillRect(flashPlace(flash), colour);
    } else {
        const QPointF middle = QRectF(flash.place).center();
        painter.translate(middle);
        const double scale = 1 + 2 * Growth * share;
        painter.scale(scale, scale);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF word(-QPointF(flash.place.width(), flash.place.height()) / 2, flash.place.size());
        painter.drawPixmap(word, flash.word, flash.word.rect());
        painter.setPen(QPen(colour, 3));
        painter.drawRoundedRect(word.adjusted(2, 2, -2, -2), Corner, Corner);
    }
    painter.restore();
}

void CPlayField::paintLine(QPainter &painter) const
{
    painter.setPen(QPen(palette().color(QPalette::Text), 1));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(m_linePlace).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    QRect inner = m_linePlace.adjusted(Padding, Padding, -Padding, -Padding);
    if (!m_hint.isEmpty()) {
        QRect low = inner;
        low.setTop(inner.bottom() + 1 - fontMetrics().lineSpacing());
        inner.setBottom(low.top() - 1);
        painter.setPen(QuietText(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.3));
        painter.drawText(low, Qt::AlignCenter, m_hint);
    }
    painter.setPen(palette().color(QPalette::Text));
    DrawFitted(painter, m_fittedLine, inner);
}

void CPlayField::paintPause(QPainter &painter) const
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * LargestWord);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter, m_pausedText);
}

void CPlayField::makeBackground()
{
    m_background = QPixmap(size() * devicePixelRatioF());
    m_background.setDevicePixelRatio(devicePixelRatioF());
    const QColor base = palette().color(QPalette::Base);
    const QColor tint = palette().color(QPalette::Highlight);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, Mixed(base, tint, 0.03));
    sky.setColorAt(1, Mixed(base, tint, 0.18));
    QPainter painter(&m_background);
    painter.fillRect(rect(), sky);
    painter.fillRect(0, height() - floorHeight(), width(), floorHeight(), tint);
}

void CPlayField::paintEvent(QPaintEvent * /*event*/)
{
    if (m_background.deviceIndependentSize().toSize() != size()
        || m_background.devicePixelRatioF() != devicePixelRatioF()) {
        makeBackground();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_background);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_line.isEmpty()) {
        paintLine(painter);
    }
    for (const Flash &flash : m_effects) {
        paintFlash(painter, flash);
    }
    if (!m_word.isNull()) {
        painter.drawPixmap(wordPoint(), m_word);
    }
    if (m_isPaused) {
        paintPause(painter);
    }
}

void CPlayField::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_effects.clear();
    makeWord();
    layOutLine();
    Q_EMIT resized();
}

void CPlayField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        m_background = {};
        makeWord();
        layOutLine();
        Q_EMIT resized();
        update();
    }
}

void CPlayField::mousePressEvent(QMouseEvent * /*event*/)
{
    Q_EMIT clicked();
}
