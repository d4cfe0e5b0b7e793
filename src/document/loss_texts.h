// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/format_loss.h"

#include <QString>

class CTexts;

/// What is lost, each with its count, and `between` between them.
QString LossesAsText(const FormatLosses &losses, const CTexts &texts, QStringView between);
