// SPDX-License-Identifier: MIT
#include "editor/inserted_entries.h"

#include "document/win32_doc.h"
#include "editor/editor_view.h"

void InsertEntries(const CWordList &entries, int row, CWin32Doc &document, IEditorView &view,
    const std::function<void(CWordList &)> &change)
{
    const int count = entries.Count();
    if (count == 0) {
        return;
    }
    const int point = view.InsertionPoint();
    const int first = row <= point ? row : row - 1;
    document.Change([&](CWordList &list) {
        list.InsertAll(entries, first);
        if (change) {
            change(list);
        }
    });
    view.SetInsertionPoint(row <= point ? point + count : point);
    view.SelectEntryRange(first, first + count - 1);
    view.ShowEntry(first + count - 1);
}
