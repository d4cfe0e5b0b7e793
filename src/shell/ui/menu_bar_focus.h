// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <QPointer>

/// Gives the keyboard back to where it was before a menu bar had it. The toolkit forgets that when one menu is
/// opened by its key after another was left by Escape. The menu bar owns it.
class CMenuBarFocus : public QObject
{
    Q_OBJECT

public:
    explicit CMenuBarFocus(QMenuBar &bar);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMenuBar &m_bar;
    QPointer<QWidget> m_before;
};
