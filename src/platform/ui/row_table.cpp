// SPDX-License-Identifier: MIT
#include "platform/ui/row_table.h"

#include <QHeaderView>
#include <QTableView>

void ShowRows(QTableView &table)
{
    table.setSelectionBehavior(QTableView::SelectRows);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.setCornerButtonEnabled(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 3 / 2);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}
