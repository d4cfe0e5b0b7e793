// SPDX-License-Identifier: MIT
#include "shell/ui/command_menus.h"

#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

namespace {

QMenu *Named(QMenu *menu)
{
    menu->setAccessibleName(menu->title().remove(u'&'));
    return menu;
}

}

QMenu *AddNamedMenu(QMenuBar &bar, const QString &title)
{
    return Named(bar.addMenu(title));
}

void FillMenu(QMenu &menu, const QList<int> &commands, const CCommandActions &actions, const CTexts &texts)
{
    for (const int id : commands) {
        if (id == CommandId::Separator) {
            menu.addSeparator();
        } else if (IsSubmenu(id)) {
            const auto submenu = std::ranges::find(CommandSubmenus(), id, &CommandMenu::title);
            FillMenu(*Named(menu.addMenu(texts.Get(id))), submenu->commands, actions, texts);
        } else if (QAction *const action = actions.Action(id)) {
            menu.addAction(action);
        }
    }
}

void FillToolBar(QToolBar &bar, const QList<int> &commands, const CCommandActions &actions, const CTexts &texts)
{
    for (const int id : commands) {
        if (id == CommandId::Separator) {
            bar.addSeparator();
            continue;
        }
        bar.addAction(actions.Action(id));
        QWidget *const button = bar.widgetForAction(actions.Action(id));
        button->setFocusPolicy(Qt::NoFocus);
        button->setAccessibleName(texts.Get(id).section(u'\n', 1));
    }
}
