// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"
#include "support/test.h"

class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

QTEST_APPLESS_MAIN(PlainTextTest)
#include "plain_text_test.moc"
