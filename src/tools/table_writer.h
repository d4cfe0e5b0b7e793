// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_cells.h"

#include <atomic>
#include <functional>
#include <memory>

/// Writes a table from its start to its end, row by row. Has its own copies of all that it needs, so it can be
/// handed to another thread.
class ITableWriter
{
public:
    ITableWriter() = default;
    virtual ~ITableWriter() = default;
    ITableWriter(const ITableWriter &) = delete;
    ITableWriter &operator=(const ITableWriter &) = delete;

    virtual int RowCount() const = 0;
    /// What stands in front of the rows, the headings included.
    virtual QString Head() const = 0;
    virtual QString Row(int row) const = 0;
    virtual QString Foot() const = 0;
};

/// A page that needs no more than Latin 1: whatever else occurs is written as a numeric reference.
std::unique_ptr<ITableWriter> MakeHtmlTableWriter(CTableCells cells, const CTexts &texts);
/// Plain text, with tabs between the cells and CR LF at the ends of lines.
std::unique_ptr<ITableWriter> MakeTextTableWriter(CTableCells cells);

/// Hands the whole table to `write`, piece by piece, until that returns false or `keepRunning` is cleared.
/// Returns false when it did not come to the end.
bool WriteTable(const ITableWriter &writer, const std::function<bool(const QString &piece)> &write,
    const std::atomic<bool> &keepRunning);
