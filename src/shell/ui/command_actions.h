// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class CTexts;
class QAction;
struct Command;
struct CommandState;

/// The actions of all commands, made from the table of commands. Owns them. A command without a handler can't
/// be chosen.
class CCommandActions : public QObject
{
    Q_OBJECT

public:
    CCommandActions(const CTexts &texts, QObject *parent);

    QAction *Action(int id) const { return m_actions.value(id); }
    /// `prepare` is called with a command right before its handler.
    void SetPreparation(std::function<void(const Command &command)> prepare) { m_prepare = std::move(prepare); }
    /// Who owns a command sets its handler and, where it has a mark, what is asked for it.
    void SetHandler(int id, std::function<void()> handler, const std::function<bool()> &isChecked = {});
    /// Carries out a command that can be chosen, as from its menu.
    void Choose(int id);
    /// Carries out a command in another way than by its handler, with what is right before and after it.
    void Run(int id, const std::function<void()> &handler);
    /// Refreshes what can be chosen, and the marks.
    void Update(const CommandState &state);
    /// Puts the names of the list's languages into the captions.
    void UpdateCaptions(const QString &language1, const QString &language2);

Q_SIGNALS:
    /// The handler of a command has returned.
    void CommandDone();

private:
    const CTexts &m_texts;
    QHash<int, QAction *> m_actions;
    QSet<int> m_handled;
    QHash<int, std::function<bool()>> m_checks;
    std::function<void(const Command &command)> m_prepare = [](const Command & /*command*/) {};
    QString m_language1;
    QString m_language2;
};
