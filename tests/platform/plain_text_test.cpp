// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"

#include <QTest>

class PlainTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bounded();
    void captions();
    void isolated_data();
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

void PlainTextTest::isolated_data()
{
    QTest::addColumn<QString>("text");
    // The marks as letters: "(" begins an isolate from left to right and ")" ends one, "[" is the one that we
    // put in front, "<" an override from right to left, "א" a letter that runs so.
    QTest::addColumn<QString>("shown");
    QTest::newRow("left to right stays as it is") << "vad? 1 + 2 åäö Ж"
                                                  << "vad? 1 + 2 åäö Ж";
    QTest::newRow("right to left") << "aאb"
                                   << "[aאb)";
    QTest::newRow("outside the basic plane") << QStringLiteral("\U00010840") << QStringLiteral("[\U00010840)");
    QTest::newRow("open override") << "a<b"
                                   << "[a<b)";
    QTest::newRow("open isolate") << "a(b(("
                                  << "[a(b(())))";
    QTest::newRow("closes nothing of ours") << "a))<b"
                                            << "[a<b)";
    QTest::newRow("balanced") << "(a)b"
                              << "[(a)b)";
    QTest::newRow("several lines") << "א(\nb"
                                   << "[א())\n[b)";
}

void PlainTextTest::isolated()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    const auto withMarks = [](QString letters) {
        return letters.replace(u'(', u'\u2066')
            .replace(u')', u'\u2069')
            .replace(u'[', u'\u2068')
            .replace(u'<', u'\u202E');
    };
    QCOMPARE(Isolated(withMarks(text)), withMarks(shown));
}

QTEST_APPLESS_MAIN(PlainTextTest)
#include "plain_text_test.moc"
