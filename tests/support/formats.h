// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/formats.h"
#include "model/word_list.h"
#include "platform/random.h"

#include <QBuffer>
#include <QStringList>

/// Short ways to read and write formats in tests.

/// The losses as "kind:count", with commas between them.
inline QString Described(const FormatLosses &losses)
{
    QStringList parts;
    for (const FormatLoss &loss : losses) {
        parts.append(QStringLiteral("%1:%2").arg(int(loss.kind)).arg(loss.count));
    }
    return parts.join(u',');
}

inline QByteArray Written(const CWordList &list, FormatId format, const FormatWriteOptions &options = {})
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return WriteListDevice(list, buffer, FormatOf(format), options) ? buffer.data()
                                                                    : QByteArrayLiteral("failed");
}

/// A list of random entries with everything that a term may hold: alternatives, comments, quotes, separators,
/// other scripts, and properties.
inline CWordList RandomList(CRandom &random)
{
    const QStringList pieces = {QStringLiteral("häst"), QStringLiteral("\""), QStringLiteral(","),
        QStringLiteral(";"), QStringLiteral(" * "), QStringLiteral("[x]"), QStringLiteral("|"),
        QStringLiteral("<b>"), QStringLiteral("&amp;"), QStringLiteral("𝄞"), QStringLiteral("'"),
        QStringLiteral("#"), QStringLiteral("ελ"), QStringLiteral(" "), QStringLiteral("="),
        QStringLiteral("\u0085"), QStringLiteral("]]>"), QStringLiteral("--"), QStringLiteral("0")};
    const auto text = [&] {
        QString made;
        for (int i = random.Next() % 6; i > 0; --i) {
            made += pieces.at(random.Next() % pieces.size());
        }
        return made;
    };
    CWordList list;
    for (int i = 0; i < 60; ++i) {
        list.Insert(CWordEntry(QStringLiteral("w") + text(), text(),
            random.Next() % 3 == 0 ? text() : QString(), random.Next() % 4 == 0, random.Next() % 4 == 0));
    }
    list.SetProperties(
        {.language1 = QStringLiteral("Svenska, \"ny\""), .language2 = QStringLiteral("Engelska")});
    return list;
}
