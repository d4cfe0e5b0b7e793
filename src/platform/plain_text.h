// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// `text` for a place that guesses whether it is given markup, as tool tips do: it is shown as it reads.
inline QString ShownAsPlainText(const QString &text)
{
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

/// `text` for a part of a caption: an ampersand in it marks no key.
inline QString ShownInCaption(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

/// A caption as it is read out: without its marked key and the colon at its end.
inline QString CaptionReadOut(const QString &caption)
{
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        i += caption.at(i) == u'&' && i + 1 < caption.size() ? 1 : 0;
        text += caption.at(i);
    }
    if (text.endsWith(u':')) {
        text.chop(1);
    }
    return text;
}
