// SPDX-License-Identifier: MIT
#include "commandline/console_prompt.h"

#include "commandline/text_numbers.h"
#include "resources/texts.h"

void CConsolePrompt::Tell(const PromptText &text, PromptIcon /*icon*/)
{
    m_console.Tell(text.text);
}

PromptAnswer CConsolePrompt::Ask(
    const PromptText &text, PromptIcon /*icon*/, PromptButtons /*buttons*/, PromptAnswer defaultAnswer)
{
    if (!m_console.IsInputATerminal()) {
        return defaultAnswer;
    }
    m_console.Print(text.text + u' ' + m_texts.Get(Text::YesOrNo) + u' ');
    const QString answer = m_console.ReadLine().value_or(QString()).trimmed();
    if (answer.isEmpty()) {
        return defaultAnswer;
    }
    return answer.startsWith(m_texts.Get(Text::YesLetter), Qt::CaseInsensitive) ? PromptAnswer::Yes
                                                                                : PromptAnswer::No;
}
