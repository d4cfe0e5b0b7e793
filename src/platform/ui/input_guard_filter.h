// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/input_guard.h"

#include <QPointer>
#include <QWidget>

class QKeyEvent;

/// Keeps from a window the keys and clicks that CInputGuard drops. It filters the events of the application,
/// and only while there is something to keep away.
class CInputGuardFilter : public QObject
{
    Q_OBJECT

public:
    explicit CInputGuardFilter(Clock clock, QObject *parent = nullptr);

    /// `window` is about to open by itself. The pause begins when it can be seen.
    void WindowOpens(QWidget &window);
    /// The same for the next dialog, which is not made yet.
    void NextDialogOpens();
    /// Another question stands in `window`. `isHastyAnswer` tells which keys would answer it at once.
    void QuestionAppeared(QWidget &window, std::function<bool(const QKeyEvent &)> isHastyAnswer);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Start(CInputGuard::Change change);
    CInputGuard::Input KeyInput(const QKeyEvent &key) const;

    Clock m_clock;
    CInputGuard m_guard;
    QPointer<QWidget> m_window;
    bool m_waitsForDialog = false;
    bool m_waitsForPaint = false;
    std::function<bool(const QKeyEvent &)> m_isHastyAnswer;
};
