// SPDX-License-Identifier: MIT
#include "editor/duplicates.h"

#include "document/win32_doc.h"
#include "editor/editor_view.h"
#include "editor/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

namespace {

/// A list with as many entries is not merged without a question.
constexpr int ManyEntries = 400;

PromptText QuestionAbout(const CTexts &texts, const CWordList &list, const DuplicatePair &pair)
{
    constexpr qsizetype Longest = 200; // A message box grows with its text.
    const auto term = [&](int entry) { return ShownShort(list.Entry(entry).GetText(pair.language), Longest); };
    return texts.Prompt(Text::SelectDuplicates,
        {ShownShort(list.GetLanguage(pair.language), Longest), QString::number(pair.entry + 1),
            QString::number(pair.other + 1), term(pair.entry), term(pair.other)});
}

}

CDuplicates::CDuplicates(IEditorView &view, CWin32Doc &document, const EditorSettings &settings,
    const CTexts &texts, IUserPrompt &prompt)
    : m_view(view), m_document(document), m_settings(settings), m_texts(texts), m_prompt(prompt)
{
}

void CDuplicates::Find()
{
    const CWordList list = m_document.List(); // The search refers to it while questions are open.
    const CDuplicateSearch search(list);
    const std::optional<DuplicatePair> first = search.FindNext(m_position);
    if (!first) {
        m_prompt.Tell(m_texts.Prompt(Text::NoDuplicates), PromptIcon::Information);
        return;
    }
    std::optional<DuplicatePair> pair = first;
    do {
        m_position = *pair;
        qDebug("Find duplicate! Language: %d, Word1: %d, Word2: %d", pair->language, pair->entry, pair->other);
        switch (m_prompt.Ask(QuestionAbout(m_texts, list, *pair), PromptIcon::Question,
            PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
        case PromptAnswer::Yes:
            m_view.SelectEntryRange(pair->entry, pair->entry);
            m_view.SelectEntries({pair->entry, pair->other});
            m_view.ShowEntry(pair->other);
            return;
        case PromptAnswer::Cancel:
            return;
        case PromptAnswer::No:
            pair = search.FindNext({pair->language, pair->entry, pair->other + 1});
        }
    } while (pair && pair != first);
    m_position = *first;
    m_prompt.Tell(m_texts.Prompt(Text::AllDuplicatesSeen), PromptIcon::Information);
}

void CDuplicates::MakeOne()
{
    const std::vector<int> entries = m_view.SelectedEntries();
    if (m_document.Change([&entries](CWordList &list) { list.MergeEntries(entries); })) {
        m_view.SelectEntries({entries.front()});
    }
}

bool CDuplicates::MayMergeAll()
{
    const bool needsQuestion = m_document.List().Count() >= ManyEntries || m_settings.undoSize < 1;
    return !needsQuestion
        || m_prompt.Confirm(
            m_texts.Prompt(Text::ReallyMergeAll), PromptIcon::Warning, PromptButtons::YesNo, PromptAnswer::No);
}

void CDuplicates::MergeAll()
{
    int merged = 0;
    m_document.Change([&merged](CWordList &list) { merged = list.MergeAll(); });
    qDebug("%d words where combinated.", merged);
    m_prompt.Tell(merged > 0 ? m_texts.Prompt(Text::EntriesMerged, {QString::number(merged)})
                             : m_texts.Prompt(Text::NoDuplicates),
        PromptIcon::Information);
}
