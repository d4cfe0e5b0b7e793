// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

/// Ends the application as soon as the window watched has painted itself.
class CFirstPaint : public QObject
{
public:
    explicit CFirstPaint(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        }
        return QObject::eventFilter(watched, event);
    }
};
