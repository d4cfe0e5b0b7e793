// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What is left of a piece of HTML as text.
struct HtmlText
{
    QString text;
    bool hadMarkup = false; ///< Elements, or comments of HTML.
    bool hadMedia = false; ///< Pictures or sounds.
};

/// Elements go, those that begin a line leave a blank, character references become characters. Takes time in
/// proportion to the text, whatever is in it.
HtmlText TextOfHtml(QStringView html);
