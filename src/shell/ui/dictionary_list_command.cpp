// SPDX-License-Identifier: MIT
#include "shell/ui/dictionary_list_command.h"

#include "editor/text_numbers.h"
#include "editor/ui/dictionary_list_window.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"
#include "shell/ui/command_actions.h"

CDictionaryListCommand::CDictionaryListCommand(CCommandActions &actions, IEditorView &view, CWin32Doc &document,
    const DictionarySettings &settings, const CTexts &texts, IUserPrompt &prompt,
    const std::function<void(const QString &section)> &openHelp, QWidget &mainWindow)
    : QObject(&mainWindow)
{
    actions.SetHandler(CommandId::DictionaryList, [&, openHelp] {
        auto form = std::make_unique<CDictionaryListForm>(document, settings, texts);
        if (form->Dictionaries().isEmpty()) {
            prompt.Tell(texts.Prompt(Text::NoDictionaryInstalled, {texts.Get(Text::DictionaryHint)}),
                PromptIcon::Information);
            return;
        }
        auto *const window = new CDictionaryListWindow(std::move(form), view, openHelp, &mainWindow);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->open();
    });
}
