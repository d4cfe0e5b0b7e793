// SPDX-License-Identifier: MIT
#include "shell/ui/tools_commands.h"

#include "platform/ui/wait_cursor.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QTimer>

#include <memory>

using namespace CommandId;

CToolsCommands::CToolsCommands(CCommandActions &actions, IEditorView &view, CWin32Doc &document,
    const EditorSettings &settings, const CTexts &texts, IUserPrompt &prompt, QObject *parent)
    : QObject(parent), m_duplicates(view, document, settings, texts, prompt)
{
    for (const auto &[command, carryOut] :
        {std::pair(FindDuplicates, &CDuplicates::Find), {MakeOneEntry, &CDuplicates::MakeOne}}) {
        actions.SetHandler(command, [this, carryOut = carryOut] {
            const CWaitCursor wait;
            (m_duplicates.*carryOut)();
        });
    }
    actions.SetHandler(MergeDuplicates, [this, &actions] {
        if (m_duplicates.MayMergeAll()) {
            MergeSoon(actions);
        }
    });
}

void CToolsCommands::MergeSoon(CCommandActions &actions)
{
    // It may take seconds, in which what lay behind the question is not painted.
    constexpr int Painted = 100;
    QTimer::singleShot(Painted, this, [this, &actions, wait = std::make_shared<CWaitCursor>()] {
        actions.Run(MergeDuplicates, [this] { m_duplicates.MergeAll(); });
    });
}
