// SPDX-License-Identifier: MIT
#include "shell/ui/window_place.h"

#include "platform/ui/window_placing.h"
#include "settings/settings_store.h"
#include "shell/window_placement.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>

namespace {

DesktopGeometry Desktop()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return {screen->virtualGeometry(), screen->availableGeometry()};
}

QString BarSection(const QString &root)
{
    return root + QStringLiteral("\\Toolbar");
}

constexpr QLatin1StringView BarState("State");
constexpr QLatin1StringView StatusBarShown("StatusBar");

}

CWindowPlace::CWindowPlace(QMainWindow &window, ISettingsStore &store, const QString &root)
    : m_window(window), m_store(store), m_root(root)
{
}

bool CWindowPlace::Restore()
{
    const auto bars = m_store.Read(BarSection(m_root), BarState);
    if (bars) {
        m_window.restoreState(QByteArray::fromBase64(bars->toLatin1()));
    }
    m_window.statusBar()->setVisible(m_store.Read(BarSection(m_root), StatusBarShown) != QStringLiteral("0"));

    const auto placement = LoadWindowPlacement(m_store, m_root, Desktop());
    if (!placement) {
        return false;
    }
    m_window.resize(placement->rectangle.size());
    if (CanPlaceWindows()) {
        m_window.move(placement->rectangle.topLeft());
    }
    m_maximised = placement->maximised;
    return true;
}

void CWindowPlace::Save()
{
    m_store.Write(BarSection(m_root), BarState, QString::fromLatin1(m_window.saveState().toBase64()));
    m_store.Write(BarSection(m_root), StatusBarShown,
        m_window.statusBar()->isHidden() ? QStringLiteral("0") : QStringLiteral("1"));
    const bool isNormal = !(m_window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
    const QRect inside = isNormal ? m_window.geometry() : m_window.normalGeometry();
    SaveWindowPlacement(m_store, m_root,
        {.rectangle = QRect(inside.topLeft() - m_frame, inside.size()),
            .maximised = m_window.windowState().testFlag(Qt::WindowMaximized)},
        Desktop());
}

void CWindowPlace::Show() const
{
    if (m_maximised) {
        m_window.showMaximized();
    } else {
        m_window.show();
    }
}

void CWindowPlace::Moved()
{
    if (m_window.isVisible() && m_window.windowState() == Qt::WindowNoState) {
        m_frame = m_window.geometry().topLeft() - m_window.pos();
    }
}
