// SPDX-License-Identifier: MIT
#include "editor/ui/edit_box_commands.h"

#include "platform/ui/long_line_edit.h"

#include <QLineEdit>

void PasteText(QLineEdit &box)
{
    if (auto *const line = qobject_cast<CLongLineEdit *>(&box)) {
        line->Paste();
    } else {
        box.paste();
    }
}

void ChangeText(QLineEdit &box, TextBox (*change)(const TextBox &))
{
    TextBox before = {box.text(), box.cursorPosition(), box.cursorPosition()};
    if (box.hasSelectedText()) {
        before.selectionStart = box.selectionStart();
        before.selectionEnd = box.selectionEnd();
    }
    const TextBox after = change(before);
    if (after.text != before.text) {
        box.selectAll();
        box.insert(after.text); // Unlike setText(), what can be undone.
    }
    box.setFocus();
    box.setCursorPosition(after.selectionEnd);
}
