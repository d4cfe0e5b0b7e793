// SPDX-License-Identifier: MIT
#pragma once

#include "editor/text_box.h"

class QLineEdit;

/// The edit box that has the keyboard focus, in whichever window; null for none. Commands on text act on it
/// alone.
QLineEdit *focusedEditBox();

/// Pastes the text of the clipboard into an edit box.
void pasteText(QLineEdit &box);

/// Lets one of the commands that write into terms work on an edit box, as one step of its own undo.
void changeText(QLineEdit &box, TextBox (*change)(const TextBox &));
