// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Lets a key that is held down be released only at its end: the display may tell of each repeat as a release
/// and a press, and while the computer is busy the toolkit may not notice that. For windows in which a release
/// presses a button. Call it when the window has all its parts.
void JoinRepeatedKeys(QWidget &window);
