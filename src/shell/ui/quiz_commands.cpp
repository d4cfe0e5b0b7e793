// SPDX-License-Identifier: MIT
#include "shell/ui/quiz_commands.h"

#include "quiz/quiz_kinds.h"
#include "quiz/ui/quiz_launch.h"
#include "settings/settings.h"
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
    for (const int direction : {FromLanguage1, FromLanguage2}) {
        const int language = direction - FromLanguage1;
        actions.SetHandler(
            direction,
            [&settings, &settingsChanges, language] {
                settings.showLanguage = language;
                settingsChanges.Tell(SettingsSection::Quiz);
            },
            [&settings, language] { return settings.showLanguage == language; });
    }
}
