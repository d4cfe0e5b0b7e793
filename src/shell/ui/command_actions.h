// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>

class CTexts;
class QAction;
struct CommandState;

/// The actions of all commands, made from the table of commands. Owns them. A command without a handler can't
/// be chosen.
class CCommandActions : public QObject
{
    Q_OBJECT

public:
    CCommandActions(const CTexts &texts, QObject *parent);

    QAction *Action(int id) const { return m_actions.value(id); }
    /// Loads the icons that are not in sight at the start, before a menu or a bar shows them.
    void LoadIcons();
    void SetHandler(int id, std::function<void()> handler);
    void SetChecked(int id, bool checked);
    /// Refreshes what can be chosen.
    void UpdateEnabled(const CommandState &state);
    /// Puts the names of the list's languages into the captions.
    void UpdateCaptions(const QString &language1, const QString &language2);

private:
    const CTexts &m_texts;
    QHash<int, QAction *> m_actions;
    QSet<int> m_handled;
    bool m_iconsLoaded = false;
    QString m_language1;
    QString m_language2;
};
