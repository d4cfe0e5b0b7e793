// SPDX-License-Identifier: MIT
#include "shell/ui/tools_commands.h"

#include "platform/ui/wait_cursor.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

using namespace CommandId;

CToolsCommands::CToolsCommands(CCommandActions &actions, IEditorView &view, CWin32Doc &document,
    const EditorSettings &settings, const CTexts &texts, IUserPrompt &prompt, QObject *parent)
    : QObject(parent), m_duplicates(view, document, settings, texts, prompt)
{
    for (const auto &[command, carryOut] : {std::pair(FindDuplicates, &CDuplicates::Find),
             {MakeOneEntry, &CDuplicates::MakeOne}, {MergeDuplicates, &CDuplicates::MergeAll}}) {
        actions.SetHandler(command, [this, carryOut = carryOut] {
            const CWaitCursor wait;
            (m_duplicates.*carryOut)();
        });
    }
}
