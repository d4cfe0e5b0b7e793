// SPDX-License-Identifier: MIT
#include "tools/table_writer.h"

bool WriteTable(const ITableWriter &writer, const std::function<bool(const QString &piece)> &write,
    const std::atomic<bool> &keepRunning)
{
    if (!write(writer.Head())) {
        return false;
    }
    for (int row = 0; row < writer.RowCount(); ++row) {
        if (!keepRunning || !write(writer.Row(row))) {
            return false;
        }
    }
    return keepRunning && write(writer.Foot());
}
