// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class CArranging;
class CCommandActions;
class CSettingsChanges;
class CWin32View;
struct ArrangeSettings;

/// The commands of the menu that puts the list in order, and the clicks on headings that do the same.
class CArrangeCommands : public QObject
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CArrangeCommands(CCommandActions &actions, CWin32View &view, CArranging &arranging,
        ArrangeSettings &settings, CSettingsChanges &settingsChanges, QObject *parent);

    /// Notes of each key whether it is held.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_keyRepeats = false;
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0; // In milliseconds, as events have it.
};
