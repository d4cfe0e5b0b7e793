// SPDX-License-Identifier: MIT
#include "editor/text_box.h"

#include "model/term_syntax.h"

#include <algorithm>

TextBox WithSynonym(const TextBox &box)
{
    QString text = NormalizeTerm(box.text);
    if (!text.isEmpty()) {
        text += AlternativeJoint;
    }
    const int end = int(text.size());
    return {text, end, end};
}

TextBox WithComment(const TextBox &box)
{
    QString text = box.text;
    text.insert(box.selectionEnd, u']').insert(box.selectionStart, u'[');
    // Kept: behind a selection the caret goes one place beyond the closing bracket.
    const int caret = box.selectionStart == box.selectionEnd ? box.selectionStart + 1 : box.selectionEnd + 3;
    const int limited = std::min(caret, int(text.size()));
    return {text, limited, limited};
}
