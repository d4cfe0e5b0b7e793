// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class CWin32Doc;
class CWordList;
class IEditorView;

/// Inserts entries above a row as one step for undo, together with what else `change` does to the list, if it
/// is given. The insertion point stays between the entries that it stood between, behind what came there. The
/// entries are selected and the last of them is shown; without any nothing happens.
void InsertEntries(const CWordList &entries, int row, CWin32Doc &document, IEditorView &view,
    const std::function<void(CWordList &)> &change = {});
