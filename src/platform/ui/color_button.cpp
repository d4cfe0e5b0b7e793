// SPDX-License-Identifier: MIT
#include "platform/ui/color_button.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>

CColorButton::CColorButton(const QString &caption, const QString &readOut, quint32 &value, QWidget *parent)
    : QPushButton(caption, parent), m_readOut(readOut), m_value(value)
{
    setAutoDefault(false);
    ShowColor();
    connect(this, &QPushButton::clicked, this, &CColorButton::Choose);
}

QColor CColorButton::Color() const
{
    return {int(m_value & 0xFFU), int(m_value >> 8U & 0xFFU), int(m_value >> 16U & 0xFFU)};
}

void CColorButton::SetColor(const QColor &color)
{
    m_value = quint32(color.red()) | quint32(color.green()) << 8U | quint32(color.blue()) << 16U;
    ShowColor();
}

void CColorButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        ShowColor(); // Its frame has the colour of the text.
    }
}

void CColorButton::ShowColor()
{
    const int side = iconSize().height();
    QPixmap picture(QSize(side * 3 / 2, side) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Color());
    QPainter painter(&picture);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawRect(0, 0, side * 3 / 2 - 1, side - 1);
    painter.end();
    setIconSize({side * 3 / 2, side});
    setIcon(picture);
    setAccessibleName(m_readOut);
    setAccessibleDescription(Color().name().toUpper());
}

void CColorButton::Choose()
{
    auto *const dialog = new QColorDialog(Color(), this);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, &CColorButton::SetColor);
    dialog->open();
}
