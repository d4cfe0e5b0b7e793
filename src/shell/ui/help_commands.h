// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class CCommandActions;
class CTexts;
class QWidget;

/// The commands of the menu for help.
class CHelpCommands : public QObject
{
public:
    /// Nothing is owned.
    CHelpCommands(
        CCommandActions &actions, const CTexts &texts, std::function<void()> openHelp, QWidget &mainWindow);
};
