// SPDX-License-Identifier: MIT
#include "editor/arranging.h"

#include "document/win32_doc.h"
#include "editor/editor_view.h"
#include "editor/word_list_model.h"
#include "settings/shell_settings.h"

#include <algorithm>
#include <array>

SortOptions SortOptionsOf(const ArrangeSettings &settings)
{
    return {.ascending = !settings.descending,
        .groupFlagged = settings.groupFlagged,
        .byLength = settings.byLength};
}

CArranging::CArranging(IEditorView &view, CWin32Doc &document, ArrangeSettings &settings, CRandom &random)
    : m_view(view), m_document(document), m_settings(settings), m_random(random), m_order(document)
{
}

void CArranging::Sort(int field)
{
    if (m_document.List().Count() < 2) {
        return;
    }
    const SortOptions options = SortOptionsOf(m_settings);
    m_document.Change([&](CWordList &list) { list.Sort(field, options, m_random); });
    if (field != ShuffleKey) {
        m_order.Set({field, options});
    }
    m_view.SelectRow(m_view.InsertionPoint(), false);
}

bool CArranging::SortOrTurn(int field)
{
    if (m_document.List().Count() < 2) {
        return false;
    }
    const bool before = m_settings.descending;
    const std::optional<CListOrder::Order> &order = m_order.Current();
    if (order && order->field == field && order->options.groupFlagged == m_settings.groupFlagged
        && order->options.byLength == m_settings.byLength) {
        m_settings.descending = order->options.ascending;
    }
    Sort(field);
    return m_settings.descending != before;
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

void CArranging::MoveRows(bool up, MovedPart part, bool goesOn)
{
    std::vector<int> entries = m_view.SelectedEntries();
    const int field = part == MovedPart::Entry ? WholeEntry : m_view.CursorField();
    const bool atEnd =
        entries.empty() || (up ? entries.front() == 0 : entries.back() + 1 == m_document.List().Count());
    if (atEnd || (part == MovedPart::Field && field == CWordListModel::NumberColumn)) {
        return;
    }
    m_document.Change(
        [&](CWordList &list) { list.MoveEntries(entries, up, field); }, goesOn ? m_moved : std::nullopt);
    m_moved = m_document.ChangeCounter();
    for (int &entry : entries) {
        entry += up ? -1 : 1;
    }
    m_view.SelectEntries(entries);
}

void CArranging::MoveFields(int step)
{
    const int from = m_view.CursorField();
    const int to = from + step;
    const std::vector<int> entries = m_view.SelectedEntries();
    if (entries.empty() || from < 0 || to < 0 || std::max(from, to) > m_view.LastField()) {
        return;
    }
    m_document.Change([&](CWordList &list) { list.SwapInEntries(entries, true, true, from, to); });
    m_view.SetCursorField(to);
}

void CArranging::MoveTo(int row)
{
    const std::vector<int> entries = m_view.SelectedEntries();
    if (entries.empty()) {
        return;
    }
    const int point = m_view.InsertionPoint();
    const bool abovePoint = row <= point;
    const int position = abovePoint ? row : row - 1;
    const auto countBefore = [&entries](int entry) {
        return int(std::ranges::lower_bound(entries, entry) - entries.begin());
    };
    const int count = int(entries.size());
    const int first = position - countBefore(position);
    m_document.Change([&](CWordList &list) { list.MoveEntriesTo(entries, position); });
    m_view.SetInsertionPoint(point - countBefore(point) + (abovePoint ? count : 0));
    m_view.SelectEntryRange(first, first + count - 1);
}
