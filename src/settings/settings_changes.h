// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

/// The sections that somebody follows while the program runs.
enum class SettingsSection { Misc, Editor, Quiz, Arrange, Find, FileSearch, EasyKey };

/// Whoever changes a section by the user's will tells so here, after the change; whoever shows it or works by a
/// value of its own listens.
class CSettingsChanges : public QObject
{
    Q_OBJECT

public:
    void Tell(SettingsSection section) { Q_EMIT Changed(section); }

Q_SIGNALS:
    void Changed(SettingsSection section);
};
