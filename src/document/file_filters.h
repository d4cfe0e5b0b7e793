// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <vector>

class CTexts;
struct Format;

/// Turns a filter text of the string table ("Name|*.one|Name|*.two||") into the toolkit's filters
/// ("Name (*.one)"). The pattern "*.*" means every file, also one without a dot in its name.
QStringList FileFilters(const QString &text);

/// A filter for each format, in their order.
QStringList FormatFilters(const std::vector<const Format *> &formats, const CTexts &texts);
/// Those of all formats that can be opened, and behind them one for every file.
QStringList OpenFilters(const CTexts &texts);
