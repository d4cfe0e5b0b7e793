// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>

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

/// Types into whatever has the focus; a line feed is Enter.
inline void TypeKeys(const QString &text)
{
    for (const QChar unit : text) {
        QTest::keyClick(QApplication::focusWidget(), unit == u'\n' ? '\r' : unit.toLatin1());
    }
}
