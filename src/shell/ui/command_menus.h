// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class CCommandActions;
class CTexts;
class QMenu;
class QMenuBar;
class QToolBar;
class QString;

/// Adds a menu that also has a name for assistive technology.
QMenu *AddNamedMenu(QMenuBar &bar, const QString &title);

/// Fills a menu with the commands of a list; submenus are made as the list names them. Places for other things,
/// such as the recent files, are left out.
void FillMenu(QMenu &menu, const QList<int> &commands, const CCommandActions &actions, const CTexts &texts);

/// Fills a tool bar likewise. Its buttons don't take the focus, so that an edit box keeps it for the commands
/// that act on its text.
void FillToolBar(
    QToolBar &bar, const QList<int> &commands, const CCommandActions &actions, const CTexts &texts);
