// SPDX-License-Identifier: MIT
#include "platform/ui/reduced_motion.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QWidget>

bool WantsReducedMotion(const QWidget &widget)
{
    if (widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) == 0) {
        return true;
    }
    // Desktops of other toolkits write theirs there, for programs that are not of their own.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QSettings shared(folder + QStringLiteral("/gtk-3.0/settings.ini"), QSettings::IniFormat);
    return !shared.value(QStringLiteral("Settings/gtk-enable-animations"), true).toBool();
}
