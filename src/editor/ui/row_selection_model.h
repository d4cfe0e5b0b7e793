// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelectionModel>

/// A selection that may consist of very many ranges. The toolkit compares each range of the selection before
/// with each of the new one to tell what differs, which takes seconds for ten thousands of them.
class CRowSelectionModel : public QItemSelectionModel
{
    Q_OBJECT

public:
    /// So many that what the toolkit does with each of them would be felt.
    static constexpr qsizetype ManyRanges = 50;

    using QItemSelectionModel::QItemSelectionModel;
    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;
};
