// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Whether the desktop asks for windows without movement: by the style of a widget, or by the setting that
/// desktops share.
bool WantsReducedMotion(const QWidget &widget);
