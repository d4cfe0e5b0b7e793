// SPDX-License-Identifier: MIT
#pragma once

class QPalette;
class QString;

/// The style sheet of marked differences: what is too much and what is missing, in bold and in colours that can
/// be read on a background of the palette.
QString differenceStyle(const QPalette &palette);
