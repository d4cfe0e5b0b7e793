// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "support/lists.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ReadResult)

class ForeignFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files()
    {
        const struct
        {
            QByteArray bytes;
            ReadResult result;
            QString content; // Author, comments, languages, then the entries; all joined by commas.
        } rows[] = {
            {"WordQuiz\n[Font]\n x\n[vocabulary] \nSwedish\nEnglish\nhund [n]\ndog [animal]\n\n\na*b [x] "
             "[y]\nc\n",
                ReadResult::Read, u",,Swedish,English,hund|dog [animal],a * b [x]|c"_s},
            // Names are the first pair that is not empty.
            {"WordQuiz\n[Vocabulary]\n\n \n[x]\nEnglish\na\nb\n", ReadResult::Read, u",,,English,a|b"_s},
            // The second line is missing at the end; similar entries are kept.
            {"WordQuiz\n[Vocabulary]\nA\nB\na\nb\na\nb\nc", ReadResult::Read, u",,A,B,a|b,a|b,c"_s},
            {"WordQuiz\na\nb\n", ReadResult::CannotOpen, {}}, {"a\nb\nc", ReadResult::PlainText, u",,,,a|b"_s},
            {"!a\n!b\n\n\n1 0\n\xE5", ReadResult::PlainText, u",,,,!a|!b,1 0|å"_s}, // has no marks
            {"\xFF\xFE\x61\0\n\0\xB1\x03"_ba, ReadResult::PlainText, u",,,,a|α"_s}, // in UTF-16
            {{}, ReadResult::PlainText, u",,,"_s},
            {"ordelin 2.0\nb\n", ReadResult::PlainText, u",,,,ordelin 2.0|b"_s}, // header in other case
        };
        for (const auto &row : rows) {
            QBuffer buffer;
            buffer.setData(row.bytes);
            buffer.open(QIODevice::ReadOnly);
            CWordList list;
            list.SetAuthor(u"someone before"_s);
            list.SetSaved(true);
            QCOMPARE(ReadWordList(list, buffer), row.result);
            if (row.result == ReadResult::CannotOpen) {
                QCOMPARE(list.Count(), 0);
                continue;
            }
            const QStringList described =
                QStringList{list.GetAuthor(), list.GetComments(), list.GetLanguage(0), list.GetLanguage(1)}
                + Describe(list);
            QCOMPARE(described.join(u','), row.content);
            QCOMPARE(list.IsSaved(), row.result == ReadResult::Read);
        }
    }
};

QTEST_APPLESS_MAIN(ForeignFilesTest)
#include "foreign_files_test.moc"
