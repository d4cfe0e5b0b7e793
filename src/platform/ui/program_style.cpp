// SPDX-License-Identifier: MIT
#include "platform/ui/program_style.h"

#include "platform/ui/contrast.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

namespace {

/// Whether a style fills the highlighted row of a menu with the highlight, as not all do.
bool FillsMenuRows(const QStyle *style)
{
    while (const auto *const proxy = qobject_cast<const QProxyStyle *>(style)) {
        style = proxy->baseStyle();
    }
    const QString name = style->name().toLower();
    return name == QStringLiteral("fusion") || name == QStringLiteral("windows");
}

}

void CProgramStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    constexpr double AsThemesHaveIt = 0.5;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::PlaceholderText,
            QuietText(
                palette.color(group, QPalette::Text), palette.color(group, QPalette::Base), AsThemesHaveIt));
    }
}

void CProgramStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *const item =
        element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem *>(option) : nullptr;
    if (item == nullptr || !FillsMenuRows(baseStyle()) || item->icon.isNull()
        || !item->state.testFlags(State_Selected | State_Enabled)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem highlighted = *item;
    const int size = pixelMetric(PM_SmallIconSize, option, widget);
    highlighted.icon =
        QIcon(item->icon.pixmap(QSize(size, size), painter->device()->devicePixelRatio(), QIcon::Selected));
    QProxyStyle::drawControl(element, &highlighted, painter, widget);
}
