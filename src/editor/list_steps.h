// SPDX-License-Identifier: MIT
#pragma once

class IEditorView;

/// Selects the row before (step -1) or after (step 1) the first selected one. Beyond the last comes the first,
/// before the first the last.
void StepSelection(IEditorView &view, int step);

/// Moves the insertion point to the row of the cell cursor.
void PlaceInsertionPoint(IEditorView &view);
