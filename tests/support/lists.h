// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"
#include "platform/random.h"
#include "support/test.h"

#include <QStringList>

#include <vector>

/// Short ways to make lists and to look at them in tests.

/// An entry from "term 1|term 2|note|flags"; flags are the digits of the flagged languages. Later parts may be
/// left out.
inline CWordEntry MakeEntry(const QString &text)
{
    const QStringList parts = text.split(u'|');
    const QString flags = parts.value(3);
    return CWordEntry(
        parts.value(0), parts.value(1), parts.value(2), flags.contains(u'1'), flags.contains(u'2'));
}

inline CWordList MakeList(const QStringList &entries)
{
    CWordList list;
    for (const QString &entry : entries) {
        list.Insert(MakeEntry(entry));
    }
    list.SetSaved(true);
    return list;
}

/// Entries with commas between them, as UTF-8.
inline CWordList MakeList(const char *entries)
{
    return MakeList(QString::fromUtf8(entries).split(u','));
}

/// The entry in the form of MakeEntry(), without empty parts at its end.
inline QString Describe(const CWordEntry &entry)
{
    QString text = entry.GetText(0) + u'|' + entry.GetText(1) + u'|' + entry.GetNote() + u'|'
        + (entry.GetFlag(0) ? QStringLiteral("1") : QString())
        + (entry.GetFlag(1) ? QStringLiteral("2") : QString());
    while (text.endsWith(u'|')) {
        text.chop(1);
    }
    return text;
}

inline QStringList Describe(const CWordList &list)
{
    QStringList entries;
    for (int index = 0; index < list.Count(); ++index) {
        entries.append(Describe(list.Entry(index)));
    }
    return entries;
}

/// All entries with commas between them.
inline QString Joined(const CWordList &list)
{
    return Describe(list).join(u',');
}

/// As many entries; %1 in the pattern is the number, from 0 on.
inline QStringList NumberedEntries(int count, const QString &pattern = QStringLiteral("a%1|b%1"))
{
    QStringList entries;
    for (int number = 0; number < count; ++number) {
        entries.append(QString(pattern).replace(QStringLiteral("%1"), QString::number(number)));
    }
    return entries;
}

/// A text of up to `length` characters of `alphabet`.
inline QString RandomText(CRandom &random, QStringView alphabet, int length)
{
    QString text;
    for (int left = random.Next() % (length + 1); left > 0; --left) {
        text.append(alphabet[random.Next() % alphabet.size()]);
    }
    return text;
}
