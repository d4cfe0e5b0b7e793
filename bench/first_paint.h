// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

/// Ends the process as soon as the window watched has painted itself.
class CFirstPaint : public QObject
{
public:
    explicit CFirstPaint(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            // Without taking anything down, which is not part of starting.
            QTimer::singleShot(0, QCoreApplication::instance(), [] { std::_Exit(0); });
        }
        return QObject::eventFilter(watched, event);
    }
};
