// SPDX-License-Identifier: MIT
#include "editor/arranging.h"

#include "document/win32_doc.h"
#include "editor/editor_view.h"
#include "settings/shell_settings.h"

#include <array>

SortOptions SortOptionsOf(const ArrangeSettings &settings)
{
    return {.ascending = !settings.descending,
        .groupFlagged = settings.groupFlagged,
        .byLength = settings.byLength};
}

CArranging::CArranging(IEditorView &view, CWin32Doc &document, const ArrangeSettings &settings, CRandom &random)
    : m_view(view), m_document(document), m_settings(settings), m_random(random)
{
}

void CArranging::Sort(int field)
{
    if (m_document.List().Count() < 2) {
        return;
    }
    m_document.Change([&](CWordList &list) { list.Sort(field, SortOptionsOf(m_settings), m_random); });
    m_view.SelectRow(m_view.InsertionPoint(), false);
}

void CArranging::SetFlags(FlagMode mode)
{
    const int language = m_view.CursorField();
    if (language != 0 && language != 1) {
        return;
    }
    const std::vector<int> entries = m_view.SelectedEntries();
    m_document.Change([&](CWordList &list) { list.SetFlags(language, entries, mode); });
}

void CArranging::ToggleFlag(int entry, int language)
{
    m_document.Change([=](CWordList &list) { list.SetFlags(language, std::array{entry}, FlagMode::Toggle); });
}
