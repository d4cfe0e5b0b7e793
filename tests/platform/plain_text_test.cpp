// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"

#include <QTest>

using namespace Qt::StringLiterals;

class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bounded();
    void captions();
    void isolated();
};

void PlainTextTest::bounded()
{
    QCOMPARE(ShownShort(QStringLiteral("abcd"), 4), QStringLiteral("abcd"));
    QCOMPARE(ShownShort(QStringLiteral("abcde"), 4), QStringLiteral("abc…"));
    // No half of a character is left.
    QCOMPARE(ShownShort(QStringLiteral("ab\U00010428de"), 4), QStringLiteral("ab…"));
}

void PlainTextTest::captions()
{
    QCOMPARE(ShownInCaption(QStringLiteral("A&B\tc\n d")), QStringLiteral("A&&B c d"));
    const QString endless = ShownInCaption(QString(1000000, u'x'));
    QCOMPARE(endless, QString(39, u'x') + u'…');
    QCOMPARE(CaptionReadOut(QStringLiteral("&Namn på A&&B:")), QStringLiteral("Namn på A&B"));
}

void PlainTextTest::isolated()
{
    const struct
    {
        QString text;
        QString shown;
    } rows[] = {
        {u"vad? 1 + 2 åäö Ж"_s, u"vad? 1 + 2 åäö Ж"_s}, // left to right stays as it is
        {u"aאb"_s, u"[aאb)"_s}, // right to left
        {u"\U00010840"_s, u"[\U00010840)"_s}, // outside the basic plane
        {u"a<b"_s, u"[a<b)"_s}, // open override
        {u"a(b(("_s, u"[a(b(())))"_s}, // open isolate
        {u"a))<b"_s, u"[a<b)"_s}, // closes nothing of ours
        {u"(a)b"_s, u"[(a)b)"_s}, // balanced
        {u"א(\nb"_s, u"[א())\n[b)"_s}, // several lines
    };
    for (const auto &row : rows) {
        const auto withMarks = [](QString letters) {
            return letters.replace(u'(', u'\u2066')
                .replace(u')', u'\u2069')
                .replace(u'[', u'\u2068')
                .replace(u'<', u'\u202E');
        };
        QCOMPARE(Isolated(withMarks(row.text)), withMarks(row.shown));
    }
}

QTEST_APPLESS_MAIN(PlainTextTest)
#include "plain_text_test.moc"
