// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Lets a window ignore Enter while the key repeats: held down since the window before, it must not confirm
/// what nobody has read yet. Call it when the window has all its parts.
void IgnoreHeldEnter(QWidget &window);
