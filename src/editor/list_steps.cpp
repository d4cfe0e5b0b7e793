// SPDX-License-Identifier: MIT
#include "editor/list_steps.h"

#include "editor/editor_view.h"
#include "editor/row_model.h"

void StepSelection(IEditorView &view, int step)
{
    const int target = view.FirstSelectedRow() + step;
    const int last = view.RowCount() - 1;
    view.SelectRow(target > last ? 0 : target < 0 ? last : target, true);
}

void PlaceInsertionPoint(IEditorView &view)
{
    if (view.CursorRow() != NoRow) {
        view.SetInsertionPoint(view.CursorRow());
    }
}
