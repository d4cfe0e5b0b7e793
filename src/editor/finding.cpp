// SPDX-License-Identifier: MIT
#include "editor/finding.h"

#include "document/win32_doc.h"
#include "editor/editor_view.h"
#include "editor/text_numbers.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/shell_settings.h"

namespace {

/// Of what stands in a list for choosing: all entries, those with a flag, those without.
FlagFilter FilterOf(int choice)
{
    return static_cast<FlagFilter>(choice - 1);
}

}

CFinding::CFinding(
    IEditorView &view, CWin32Doc &document, FindSettings &settings, const CTexts &texts, IUserPrompt &prompt)
    : m_view(view), m_document(document), m_settings(settings), m_texts(texts), m_prompt(prompt)
{
}

TextSearch CFinding::Search() const
{
    TextSearch search = {.text = m_text,
        .matchCase = m_settings.matchCase,
        .wholeWord = m_settings.wholeWord,
        .wildcard = m_settings.wildcard};
    if (m_settings.advancedSearch) {
        search.column = m_settings.language;
        search.flag1 = FilterOf(m_settings.flag1);
        search.flag2 = FilterOf(m_settings.flag2);
    }
    return search;
}

bool CFinding::HasAim() const
{
    return !m_text.isEmpty() || m_settings.advancedSearch;
}

TextMatch CFinding::FindNext(bool takeFocus)
{
    const bool downward = !m_settings.advancedSearch || m_settings.searchDown;
    const TextMatch match = m_document.List().FindNext(Search(), m_view.FirstSelectedEntry(), downward);
    if (!match.IsFound()) {
        TellNothingFound();
        return match;
    }
    qDebug("Language: %d  start: %d  end: %d", match.column, match.start, match.end);
    m_view.ShowMatch(match, takeFocus);
    return match;
}

int CFinding::FindAll()
{
    const std::vector<int> entries = m_document.List().FindAll(Search());
    if (entries.empty()) {
        TellNothingFound();
    } else {
        m_view.SelectEntries(entries);
    }
    return int(entries.size());
}

void CFinding::TellNothingFound()
{
    m_prompt.Tell(m_texts.Prompt(Text::NothingFound), PromptIcon::Information);
}
