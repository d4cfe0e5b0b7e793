// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class CCommandActions;
class CQuizLaunch;
class CSettingsChanges;
struct QuizSettings;

/// The commands of the menu for quizzes.
class CQuizCommands : public QObject
{
public:
    /// Nothing is owned.
    CQuizCommands(CCommandActions &actions, CQuizLaunch &launch, QuizSettings &settings,
        CSettingsChanges &settingsChanges, QObject *parent);
};
