// SPDX-License-Identifier: MIT
#include "editor/ui/row_selection_model.h"

#include <algorithm>

void CRowSelectionModel::select(const QItemSelection &selection, SelectionFlags command)
{
    const qsizetype before = this->selection().size();
    const bool replaces = command.testAnyFlags(Clear | Current);
    if (replaces && before > 0 && std::max(before, selection.size()) > ManyRanges) {
        QItemSelectionModel::select(QItemSelection(), Clear); // Nothing is compared with an empty selection.
    }
    QItemSelectionModel::select(selection, command);
}
