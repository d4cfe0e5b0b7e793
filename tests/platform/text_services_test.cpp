// SPDX-License-Identifier: MIT
#include "platform/collation.h"
#include "platform/letters.h"
#include "platform/plain_text.h"
#include "platform/random.h"
#include "platform/windows_1252.h"
#include "support/test.h"

#include <algorithm>
#include <cstring>

class TextServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swedishOrder()
    {
        QStringList words = {u"ö"_s, u"ä"_s, u"å"_s, u"Zebra"_s, u"e"_s, u"É"_s, u"f"_s, u"wok"_s, u"vy"_s,
            u"c-d"_s, u"cd"_s, u"ab c"_s, u"abb"_s};
        const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
        std::ranges::sort(
            words, [&](const QString &a, const QString &b) { return collator.Compare(a, b) < 0; });
        QCOMPARE(words.join(u','), u"ab c,abb,c-d,cd,e,É,f,vy,wok,Zebra,å,ä,ö"_s);

        QVERIFY(collator.Equal(u"ÅSA", u"åsa") && !collator.Equal(u"e", u"é"));
        QVERIFY(!collator.Equal(u"å", u"a") && !collator.Equal(u"to be", u"to-be"));
    }

    void sortKeysOrderLikeComparison()
    {
        CRandom random(7);
        const CSwedishCollator &collator = CSwedishCollator::ForThisThread();
        const QString alphabet = u"aAåÅäöÖeéÉz -'Ωж\u0301"_s;
        const auto draw = [&] {
            QString text;
            for (int length = random.Next() % 9; length > 0; --length) {
                text.append(alphabet.at(random.Next() % alphabet.size()));
            }
            return text;
        };
        for (int i = 0; i < 3000; ++i) {
            const QString a = draw();
            const QString b = draw();
            std::vector<char> keys;
            collator.AppendSortKey(a, keys);
            const size_t second = keys.size();
            collator.AppendSortKey(b, keys);
            const int byKey = std::strcmp(keys.data(), keys.data() + second);
            const int byText = collator.Compare(a, b);
            QVERIFY2((byKey < 0) == (byText < 0) && (byKey == 0) == (byText == 0), qPrintable(a + u'|' + b));
        }
    }

    void lettersAndCase()
    {
        QCOMPARE(KeepLetters(u"Å-ä 1ö'é\tж", false), u"Åäöéж"_s);
        QCOMPARE(KeepLetters(u"to-be or\tnot", true), u"tobe ornot"_s);
        // A letter outside the basic plane stays whole, a lone surrogate is no letter.
        QCOMPARE(KeepLetters(u"a\U00010400\xD800", false), u"a\U00010400"_s);
        QCOMPARE(ToLowerCase(u"ÅÄÖ É \U00010400\xDC00"), u"åäö é \U00010428\xDC00"_s);
        QCOMPARE(CaseFolding()[u'Σ'], u'σ');
        QCOMPARE(CaseFolding()[u'ς'], u'σ');
        QCOMPARE(CaseFolding()[u'ß'], u'ß'); // Its full folding is two letters and would shift positions.
        QCOMPARE(CaseFolding()[0xD801], char16_t(0xD801));
    }

    void codePage()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) {
            all.append(char(byte));
        }
        const QString decoded = DecodeWindows1252(all);
        QCOMPARE(decoded.at(0x80), QChar(u'€'));
        QCOMPARE(decoded.at(0x8A), QChar(u'Š'));
        QCOMPARE(decoded.at(0x9F), QChar(u'Ÿ'));
        QCOMPARE(decoded.at(0xE5), QChar(u'å'));
        for (const int undefined : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
            QCOMPARE(decoded.at(undefined).unicode(), char16_t(undefined));
        }
        QByteArray back;
        QVERIFY(AppendWindows1252(decoded, back));
        QCOMPARE(back, all);
        QByteArray bytes;
        // U+0080 is not the euro, full-width a is not a, a surrogate pair is one character.
        QVERIFY(!AppendWindows1252(u"a\u0080\uFF41\U0001F600\xD83Dz", bytes));
        QCOMPARE(bytes, QByteArray("a????z"));
        bytes.clear();
        QVERIFY(!AppendWindows1252(u"e\u0301α", bytes));
        QCOMPARE(bytes, QByteArray("e??"));
    }

    void boundedAndInCaptions()
    {
        QCOMPARE(ShownShort(u"abcd"_s, 4), u"abcd"_s);
        QCOMPARE(ShownShort(u"abcde"_s, 4), u"abc…"_s);
        // No half of a character is left.
        QCOMPARE(ShownShort(u"ab\U00010428de"_s, 4), u"ab…"_s);
        QCOMPARE(ShownInCaption(u"A&B\tc\n d"_s), u"A&&B c d"_s);
        const QString endless = ShownInCaption(QString(1000000, u'x'));
        QCOMPARE(endless, QString(39, u'x') + u'…');
        QCOMPARE(CaptionReadOut(u"&Namn på A&&B:"_s), u"Namn på A&B"_s);
    }

    void isolated()
    {
        const std::pair<QString, QString> rows[] = {
            {u"vad? 1 + 2 åäö Ж"_s, u"vad? 1 + 2 åäö Ж"_s}, // left to right stays as it is
            {u"aאb"_s, u"[aאb)"_s}, // right to left
            {u"\U00010840"_s, u"[\U00010840)"_s}, // outside the basic plane
            {u"a<b"_s, u"[a<b)"_s}, // open override
            {u"a(b(("_s, u"[a(b(())))"_s}, // open isolate
            {u"a))<b"_s, u"[a<b)"_s}, // closes nothing of ours
            {u"(a)b"_s, u"[(a)b)"_s}, // balanced
            {u"א(\nb"_s, u"[א())\n[b)"_s}, // several lines
        };
        for (const auto &[text, shown] : rows) {
            const auto withMarks = [](QString letters) {
                return letters.replace(u'(', u'\u2066')
                    .replace(u')', u'\u2069')
                    .replace(u'[', u'\u2068')
                    .replace(u'<', u'\u202E');
            };
            QCOMPARE(Isolated(withMarks(text)), withMarks(shown));
        }
    }
};

QTEST_APPLESS_MAIN(TextServicesTest)
#include "text_services_test.moc"
