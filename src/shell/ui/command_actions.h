// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>

#include <functional>

class CTexts;
class QAction;
struct CommandState;

/// The actions of all commands, made from the table of commands. Owns them.
class CCommandActions : public QObject
{
    Q_OBJECT

public:
    explicit CCommandActions(const CTexts &texts, QObject *parent);

    QAction *Action(int id) const { return m_actions.value(id); }
    void SetHandler(int id, std::function<void()> handler);
    /// Refreshes what can be chosen.
    void UpdateEnabled(const CommandState &state);

private:
    QHash<int, QAction *> m_actions;
};
