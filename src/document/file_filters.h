// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Turns a filter text of the string table ("Name|*.one|Name|*.two||") into the toolkit's filters
/// ("Name (*.one)"). The pattern "*.*" means every file, also one without a dot in its name.
QStringList FileFilters(const QString &text);
