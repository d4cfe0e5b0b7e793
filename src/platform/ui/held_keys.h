// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Lets a window tell a key that is held down from one that is pressed again and again. The display may tell of
/// each repeat as a release and a press, which the toolkit doesn't notice while the computer is busy. So a key
/// is released in the window only at its end, and Enter does nothing while it repeats: held down since the
/// window before, it must not confirm what nobody has read yet. Call it before the window is shown.
void NoticeHeldKeys(QWidget &window);
