// SPDX-License-Identifier: MIT
#include "shell/window_placement.h"

#include "settings/settings_store.h"

namespace {

constexpr int IconSize = 32;
constexpr int Normal = 1;
constexpr int Maximised = 3;

QString SectionPath(const QString &root)
{
    return root + QStringLiteral("\\Winpos");
}

}

std::optional<WindowPlacement> LoadWindowPlacement(
    const ISettingsStore &store, const QString &root, const DesktopGeometry &desktop)
{
    // A value of -1 counts as missing.
    const auto read = [&](const QString &name) {
        bool isNumber = false;
        const int value = store.Read(SectionPath(root), name).value_or(QString()).toInt(&isNumber);
        return isNumber ? value : -1;
    };
    const int status = read(QStringLiteral("Status"));
    const int top = read(QStringLiteral("Top"));
    const int left = read(QStringLiteral("Left"));
    const int bottom = read(QStringLiteral("Bottom"));
    const int right = read(QStringLiteral("Right"));
    const qint64 width = qint64(right) - left;
    const qint64 height = qint64(bottom) - top;
    constexpr int Largest = 0x7FFF;
    if (status == -1 || top == -1 || left == -1 || bottom == -1 || right == -1 || width <= 0 || height <= 0
        || width > Largest || height > Largest) {
        return {};
    }
    // A window larger than all screens takes memory for what nobody sees.
    const QSize size = QSize(int(width), int(height)).boundedTo(desktop.screens.size());
    // Kept: a place too far to the left or the top is not corrected.
    const qint64 x =
        std::min(qint64(left) + desktop.workArea.left(), qint64(desktop.screens.right()) + 1 - IconSize);
    const qint64 y =
        std::min(qint64(top) + desktop.workArea.top(), qint64(desktop.screens.bottom()) + 1 - IconSize);
    return WindowPlacement{QRect({int(x), int(y)}, size), status == Maximised};
}

void SaveWindowPlacement(ISettingsStore &store, const QString &root, const WindowPlacement &placement,
    const DesktopGeometry &desktop)
{
    const QRect relative = placement.rectangle.translated(-desktop.workArea.topLeft());
    const auto write = [&](const QString &name, int value) {
        store.Write(SectionPath(root), name, QString::number(value));
    };
    write(QStringLiteral("Status"), placement.maximised ? Maximised : Normal);
    write(QStringLiteral("Top"), relative.top());
    write(QStringLiteral("Left"), relative.left());
    write(QStringLiteral("Bottom"), relative.top() + relative.height());
    write(QStringLiteral("Right"), relative.left() + relative.width());
}
