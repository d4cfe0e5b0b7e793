// SPDX-License-Identifier: MIT
#include "shell/ui/quiz_commands.h"

#include "quiz/quiz_kinds.h"
#include "quiz/ui/quiz_launch.h"
#include "settings/quiz_settings.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

using namespace CommandId;

CQuizCommands::CQuizCommands(CCommandActions &actions, CQuizLaunch &launch, ::QuizSettings &settings,
    CSettingsChanges &settingsChanges, QObject *parent)
    : QObject(parent)
{
    for (const QuizKindRow &row : quizKinds()) {
        if (launch.hasWindow(row.kind)) {
            actions.SetHandler(row.command, [&launch, kind = row.kind] { launch.startQuiz(kind); });
        }
    }
    const auto setDirection = [&](int command, QuizDirection direction) {
        actions.SetHandler(
            command,
            [&settings, &settingsChanges, direction] {
                settings.showLanguage = direction;
                settingsChanges.Tell(SettingsSection::Quiz);
            },
            [&settings, direction] { return settings.showLanguage == direction; });
    };
    setDirection(FromLanguage1, QuizDirection::FromLanguage1);
    setDirection(FromLanguage2, QuizDirection::FromLanguage2);
}
