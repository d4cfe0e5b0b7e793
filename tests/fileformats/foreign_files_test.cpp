// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "support/lists.h"

#include <QBuffer>
#include <QTest>

Q_DECLARE_METATYPE(ReadResult)

class ForeignFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_data();
    void files();
};

void ForeignFilesTest::files_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<ReadResult>("result");
    QTest::addColumn<QString>(
        "content"); // Author, comments, languages, then the entries; all joined by commas.
    QTest::addColumn<bool>("saved");
    QTest::newRow("vocabulary") << QByteArray(
        "WordQuiz\n[Font]\n x\n[vocabulary] \nSwedish\nEnglish\nhund [n]\ndog [animal]\n\n\na*b [x] [y]\nc\n")
                                << ReadResult::Read << ",,Swedish,English,hund|dog [animal],a * b [x]|c"
                                << true;
    QTest::newRow("names are the first pair that is not empty")
        << QByteArray("WordQuiz\n[Vocabulary]\n\n \n[x]\nEnglish\na\nb\n") << ReadResult::Read
        << ",,,English,a|b" << true;
    QTest::newRow("second line missing at the end")
        << QByteArray("WordQuiz\n[Vocabulary]\nA\nB\na\nb\nc") << ReadResult::Read << ",,A,B,a|b,c" << true;
    QTest::newRow("similar entries are kept") << QByteArray("WordQuiz\n[Vocabulary]\nA\nB\na\nb\na\nb\n")
                                              << ReadResult::Read << ",,A,B,a|b,a|b" << true;
    QTest::newRow("no vocabulary") << QByteArray("WordQuiz\na\nb\n") << ReadResult::CannotOpen << "" << false;
    QTest::newRow("plain text") << QByteArray("a\nb\nc") << ReadResult::PlainText << ",,,,a|b" << false;
    QTest::newRow("plain text has no marks") << QByteArray("!a\n!b\n\n\n1 0\n\xE5") << ReadResult::PlainText
                                             << QStringLiteral(",,,,!a|!b,1 0|å") << false;
    QTest::newRow("plain text in UTF-16") << QByteArray("\xFF\xFE"
                                                        "a\0\n\0\xB1\x03",
        8) << ReadResult::PlainText << QStringLiteral(",,,,a|α")
                                          << false;
    QTest::newRow("empty file") << QByteArray() << ReadResult::PlainText << ",,," << false;
    QTest::newRow("header in other case")
        << QByteArray("ordelin 2.0\nb\n") << ReadResult::PlainText << ",,,,ordelin 2.0|b" << false;
}

void ForeignFilesTest::files()
{
    QFETCH(QByteArray, bytes);
    QFETCH(ReadResult, result);
    QFETCH(QString, content);
    QFETCH(bool, saved);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CWordList list;
    list.SetAuthor(QStringLiteral("someone before"));
    list.SetSaved(true);
    QCOMPARE(ReadWordList(list, buffer), result);
    if (result == ReadResult::CannotOpen) {
        QCOMPARE(list.Count(), 0);
        return;
    }
    const QStringList described =
        QStringList{list.GetAuthor(), list.GetComments(), list.GetLanguage(0), list.GetLanguage(1)}
        + Describe(list);
    QCOMPARE(described.join(u','), content);
    QCOMPARE(list.IsSaved(), saved);
}

QTEST_APPLESS_MAIN(ForeignFilesTest)
#include "foreign_files_test.moc"
