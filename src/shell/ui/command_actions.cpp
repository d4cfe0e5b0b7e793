// SPDX-License-Identifier: MIT
#include "shell/ui/command_actions.h"

#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "shell/commands.h"

#include <QAction>
#include <QIcon>

namespace {

/// The desktop's icon of that name, else the program's own. Without a theme of the desktop's own there is only
/// the one that holds programs' icons, which is not worth the time of looking through it at every start.
QIcon CommandIcon(const QString &name)
{
    if (name.isEmpty()) {
        return {};
    }
    const QIcon own(QStringLiteral(":/icons/%1.svg").arg(name));
    const QString theme = QIcon::themeName();
    return theme.isEmpty() || theme == QStringLiteral("hicolor") ? own : QIcon::fromTheme(name, own);
}

}

CCommandActions::CCommandActions(const CTexts &texts, QObject *parent) : QObject(parent)
{
    for (const Command &command : commandTable()) {
        auto *action = new QAction(CommandIcon(command.icon), texts.Get(Text::Caption(command.id)), this);
        action->setObjectName(QStringLiteral("command%1").arg(command.id));
        QList<QKeySequence> shortcuts;
        for (const QString &shortcut : command.shortcuts) {
            shortcuts.append(QKeySequence(shortcut, QKeySequence::PortableText));
        }
        action->setShortcuts(shortcuts);
        const QString help = texts.Get(command.id);
        action->setStatusTip(help.section(u'\n', 0, 0));
        action->setToolTip(help.section(u'\n', 1));
        m_actions.insert(command.id, action);
    }
}

void CCommandActions::SetHandler(int id, std::function<void()> handler)
{
    connect(Action(id), &QAction::triggered, this, [handler = std::move(handler)] { handler(); });
}

void CCommandActions::UpdateEnabled(const CommandState &state)
{
    for (const Command &command : commandTable()) {
        Action(command.id)->setEnabled(isEnabled(command.enabled, state));
    }
}
