// SPDX-License-Identifier: MIT
#include "quiz/duplicate_question.h"

#include "model/duplicate_search.h"
#include "model/word_list.h"
#include "platform/user_prompt.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

bool mayStartQuiz(
    const CWordList &list, const EditorSettings &settings, const CTexts &texts, IUserPrompt &prompt)
{
    if (!settings.duplicateCheckBeforeQuiz || list.Count() >= settings.duplilcateCheckBeforeQuizMax) {
        return true;
    }
    return !CDuplicateSearch(list).FindNext()
        || prompt.Confirm(texts.Prompt(Text::DuplicatesBeforeQuiz), PromptIcon::Question,
            PromptButtons::YesNoCancel, PromptAnswer::No);
}
