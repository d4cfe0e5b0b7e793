// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What stands in an edit box, for the commands that write into terms. Positions are code units; without a
/// selection both ends are the caret's.
struct TextBox
{
    QString text = {};
    int selectionStart = 0;
    int selectionEnd = 0;
};

/// The text in normal form, made ready for one more alternative; the caret goes to the end.
TextBox WithSynonym(const TextBox &box);
/// Puts the selection in comment brackets, or makes an empty comment with the caret inside.
TextBox WithComment(const TextBox &box);
