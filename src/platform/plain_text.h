// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// `text` for a place that guesses whether it is given markup, as tool tips do: it is shown as it reads.
inline QString ShownAsPlainText(const QString &text)
{
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}
