// SPDX-License-Identifier: MIT
#pragma once

class QTableView;

/// Makes a table one of rows: they are selected whole, have no grid and no headings of their own, and Tab
/// leaves it.
void ShowRows(QTableView &table);
