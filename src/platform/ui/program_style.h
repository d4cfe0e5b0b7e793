// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// The desktop's style with what it leaves hard to see: placeholders that can be read, and icons in the colour
/// of the text in a highlighted row of a menu.
class CProgramStyle : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;
};
