// SPDX-License-Identifier: MIT
#pragma once

#include "editor/text_box.h"

class QLineEdit;

/// Pastes the text of the clipboard into an edit box.
void PasteText(QLineEdit &box);

/// Lets one of the commands that write into terms work on an edit box, as one step of its own undo.
void ChangeText(QLineEdit &box, TextBox (*change)(const TextBox &));
