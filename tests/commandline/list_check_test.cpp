// SPDX-License-Identifier: MIT
#include "commandline/list_check.h"
#include "support/lists.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ListCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings()
    {
        const struct
        {
            QStringList entries; // "term1|term2|note"
            QString found; // Kind, entry and field of each, as letters and numbers.
        } rows[] = {
            {{u"a|b"_s, u"a [x]|c * d"_s, u"e (f)|[g] h"_s}, {}},
            {{u"|b"_s, u"a|"_s}, u"M0.0 M1.1"_s},
            // Comments and letter case make another alternative; an entry may say the same twice.
            {{u"a * b|x"_s, u"b * a|y"_s, u"A|z * z"_s, u"a [c]|x"_s}, u"S1.0>0 S1.0>0 S3.1>0"_s},
            {{u"a [b|c"_s, u"d] e|f"_s, u"g (h|i [j [k]"_s, u"a) l|m"_s}, u"O0.0 T1.0 O2.0 O2.1"_s},
            {{u"[a * b]|c"_s}, u"O0.0 T0.0"_s},
            {{u"a\u030A|b"_s, u"å|q\u0323"_s, u"c|d|e\u0301"_s}, u"D0.0 D2.2"_s},
            {{u"a\u00A0b|c"_s, u"d\u200B|e , f"_s, u"( g )|h"_s, u"\u00A0i|j"_s},
                u"B0.0 B1.0 B1.1 B2.0 B3.0"_s},
            {{u"« oui »|yes"_s, u"quoi\u00A0?|what?"_s, u"a, b; c|d"_s}, {}},
        };
        for (const auto &[entries, found] : rows) {
            QStringList told;
            CheckList(MakeList(entries), [&told](const ListFinding &finding) {
                told.append(
                    u"%1%2.%3"_s.arg(u"MSOTDB"_s.at(int(finding.kind))).arg(finding.entry).arg(finding.field)
                    + (finding.other == NoEntry ? QString() : u">%1"_s.arg(finding.other)));
            });
            QCOMPARE(told.join(u' '), found);
        }
    }

    void properties()
    {
        CWordList list;
        list.SetProperties({.language1 = u"Svenska "_s, .language2 = u"e\u0301"_s, .comments = u"a  b"_s});
        int found = 0;
        CheckList(list, [&found](const ListFinding &finding) {
            QCOMPARE(finding.entry, NoEntry);
            QCOMPARE(finding.field, ListFinding::FirstProperty + (found == 2 ? 3 : found));
            ++found;
        });
        QCOMPARE(found, 3);
    }

    void manyOfOneKindTakeNoLonger()
    {
        // Every entry shares its alternative with every other; each tells of one.
        CWordList list;
        for (int i = 0; i < 20000; ++i) {
            list.Insert(CWordEntry(u"a"_s, QString::number(i)));
        }
        int found = 0;
        CheckList(list, [&found](const ListFinding & /*finding*/) { ++found; });
        QCOMPARE(found, 19999);
    }
};

QTEST_APPLESS_MAIN(ListCheckTest)
#include "list_check_test.moc"
