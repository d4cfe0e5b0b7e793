// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include "platform/data_folders.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

void OpenHelp(const CTexts &texts, const QStringList &dataFolders, IUserPrompt &prompt,
    const std::function<bool(const QString &path)> &open)
{
    const QString file = FindDataFile(dataFolders, texts.Get(Text::HelpPath));
    if (file.isEmpty() || !open(file)) {
        prompt.Tell(texts.Prompt(Text::CannotOpenHelp), PromptIcon::Warning);
    }
}
