// SPDX-License-Identifier: MIT
#include "platform/ui/owner_window.h"

#include <QApplication>
#include <QWidget>

QWidget *OwnerWindow()
{
    // A tool window stands beside the others and stays usable while a question is open.
    QWidget *const active = QApplication::activeWindow();
    if (active != nullptr && active->windowType() != Qt::Tool) {
        return active;
    }
    if (QWidget *const modal = QApplication::activeModalWidget()) {
        return modal;
    }
    // While another program is active: dialogs are made later than what they stand in front of.
    QWidget *owner = nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        const bool dialog = window->windowType() == Qt::Dialog;
        if (window->isVisible() && (dialog || (window->windowType() == Qt::Window && owner == nullptr))) {
            owner = window;
        }
    }
    return owner;
}
