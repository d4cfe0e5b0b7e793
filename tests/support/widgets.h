// SPDX-License-Identifier: MIT
#pragma once

#include "support/test.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>

/// The window of this class on screen, or null.
template<class Window>
Window *FindWindow()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const window = qobject_cast<Window *>(widget);
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// The control of this name in a window, or null.
template<class Widget>
Widget *Find(const QObject *window, const char *name)
{
    return window->findChild<Widget *>(QLatin1StringView(name));
}

/// The test fails where a control of a window says nothing to assistive technology. A button says its caption.
inline void VerifyAccessibleNames(const QWidget *window)
{
    for (const QWidget *const widget : window->findChildren<QWidget *>()) {
        const bool isControl = (widget->focusPolicy() != Qt::NoFocus && !widget->inherits("QAbstractButton"))
            || widget->inherits("QProgressBar");
        const bool isOurs = !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_");
        QVERIFY2(
            !isControl || !isOurs || !widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
}

/// Lets data be dropped on a widget. False where it is refused.
inline bool Drop(QWidget *target, const QMimeData &data, const QPoint &place = {9, 9})
{
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    return enter.isAccepted() && QApplication::sendEvent(target, &drop) && drop.isAccepted();
}

/// Types into whatever has the focus; a line feed is Enter.
inline void TypeKeys(const QString &text)
{
    for (const QChar unit : text) {
        QTest::keyClick(QApplication::focusWidget(), unit == u'\n' ? '\r' : unit.toLatin1());
    }
}
