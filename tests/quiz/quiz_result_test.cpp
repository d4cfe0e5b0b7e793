// SPDX-License-Identifier: MIT
#include "quiz/quiz_result.h"
#include "support/files.h"
#include "support/test_session.h"

namespace {

/// A quiz over three animals, answered, and its result.
struct Result : TestSession
{
    explicit Result(ResultMode mode = ResultMode::AfterQuiz)
        : TestSession(u"hund|dog,katt|cat||1,häst|лошадь"_s),
          result(session, {test.texts, test.prompt, chooser, resultSettings}, mode)
    {
    }
    void Answer(int word, const QStringList &answers)
    {
        for (const QString &answer : answers) {
            session.recordAnswer(word, answer);
        }
    }

    ResultSettings resultSettings;
    CScriptedChooser chooser;
    CQuizResult result;
};

}

class QuizResultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table()
    {
        Result run;
        run.Answer(0, {u"x"_s, u"%s"_s, u"dog"_s});
        run.Answer(1, {QString(), u"cat"_s, u"cat"_s, u"cat"_s});
        QCOMPARE(run.result.table(),
            u"Svenska\tEngelska\tProcent\tFelaktiga svar\r\n"
            "hund\tdog\t1 av 3 (33%)\t\"x\", \"%s\"\r\n"
            "katt\tcat\t3 av 4 (75%)\t\"\"\r\n"
            "häst\tлошадь\t-\t\r\n"
            "Totalt 3 glosor. Av 7 svar är 4 rätt (57%)."_s);
        QCOMPARE(run.result.rightShare(), 571);
        const auto percent = [&](int row) {
            return run.result.model().index(row, 2).data(CQuizResultModel::PercentRole).toInt();
        };
        QCOMPARE((QList<int>{percent(0), percent(1), percent(2)}), (QList<int>{33, 75, 0}));
    }

    void duringAQuiz()
    {
        Result run(ResultMode::DuringQuiz);
        run.Answer(1, {u"x"_s});
        QCOMPARE(run.result.table(),
            u"Svenska\tProcent\tFelaktiga svar\r\nhund\t-\t\r\nkatt\t0 av 1 (0%)\t\"x\"\r\nhäst\t-\t\r\n"
            "Totalt 3 glosor. Av 1 svar är 0 rätt (0%)."_s);
        QVERIFY(!run.result.showsRightAnswers() && !run.result.changesFlags());
    }

    void flagLine()
    {
        const struct
        {
            QList<int> limits; // flag, unflag; -1 is off
            int unaskedTo;
            QString line;
            QString entries; // Afterwards.
        } rows[] = {
            {{100, 0}, -1, u"1 glosor kommer att flaggas, 1 glosor kommer att avflaggas."_s,
                u"hund|dog||1,katt|cat,häst|лошадь"_s}, // factory limits
            {{100, -1}, -1, u"1 glosor kommer att flaggas."_s, u"hund|dog||1,katt|cat||1,häst|лошадь"_s},
            {{-1, 0}, -1, u"1 glosor kommer att avflaggas."_s, u"hund|dog,katt|cat,häst|лошадь"_s},
            {{-1, -1}, -1, u"Inga glosor kommer att ändras."_s, u"hund|dog,katt|cat||1,häst|лошадь"_s},
            {{-1, -1}, 1, u"1 glosor kommer att flaggas."_s, u"hund|dog,katt|cat||1,häst|лошадь||1"_s},
        };
        for (const auto &row : rows) {
            Result run;
            run.Answer(0, {u"dog"_s});
            run.Answer(1, {u"x"_s});
            ResultSettings &settings = run.resultSettings;
            settings.flagWord = row.limits[0] >= 0;
            settings.flagWordLimit = row.limits[0];
            settings.unFlagWord = row.limits[1] >= 0;
            settings.unFlagWordLimit = row.limits[1];
            settings.changeUnasked = row.unaskedTo >= 0;
            settings.changeUnaskedTo = FlagState(row.unaskedTo);
            QCOMPARE(run.result.flagLine(), row.line);
            run.result.applyFlags();
            QCOMPARE(run.Entries(), row.entries);
        }
    }

    void savedTable()
    {
        QTemporaryDir folder;
        Result run;
        run.Answer(0, {u"é"_s});
        const QString plain = folder.filePath(u"plain.txt"_s);
        const QString unicode = folder.filePath(u"unicode.txt"_s);
        const QString nowhere = folder.filePath(u"none/x.txt"_s);
        run.chooser.paths = {QString(), plain, nowhere};
        run.result.saveTable(); // Cancelled.
        run.result.saveTable();
        QVERIFY(
            Content(plain).startsWith("Svenska\tEngelska\tProcent\tFelaktiga svar\r\nhund\tdog\t0 av 1 (0%)\t"
                                      "\"\xE9\"\r\n"));
        QVERIFY(Content(plain).contains("h\xE4st\t??????\t-"));
        run.result.saveTable();
        QCOMPARE(run.test.prompt.numbers, (QList<int>{Text::SavedWithoutCharacters, Text::CannotSave}));
        QCOMPARE(run.chooser.asked.at(0).filters,
            (QStringList{u"Textdokument (*.txt)"_s, u"Textdokument (Unicode) (*.txt)"_s}));
        QCOMPARE(run.chooser.asked.at(0).defaultSuffix, u"txt"_s);

        run.chooser.paths = {unicode};
        run.chooser.filter = 1;
        run.result.saveTable();
        QVERIFY(Content(unicode).startsWith(QByteArray("\xFF\xFES\0v\0e\0", 8)));
        QCOMPARE(run.test.prompt.numbers.size(), 2);
    }

    void savedMistakes()
    {
        QTemporaryDir folder;
        Result run;
        run.Answer(0, {u"x"_s, u"dog"_s});
        run.Answer(1, {u"cat"_s});
        run.Answer(2, {u"x"_s});
        run.test.document.Change([&](CWordList &list) { list.SetAuthor(u"Eva"_s); });
        const QString own = folder.filePath(u"djur.gls"_s);
        QVERIFY(run.test.document.OnSaveDocument(own));

        const QString path = folder.filePath(u"fel.gls"_s);
        run.chooser.paths = {path, folder.filePath(u"none/x.gls"_s), folder.filePath(u"./djur.gls"_s)};
        run.result.saveMistakes();
        QCOMPARE(run.chooser.asked.at(0).start, folder.filePath(u"djur – fel.gls"_s));
        QCOMPARE(run.test.document.Path(), own);
        TestDocument saved;
        QVERIFY(saved.document.OpenDocument(path));
        QCOMPARE(Joined(saved.document.List()), u"hund|dog,häst|лошадь"_s);
        QCOMPARE(saved.document.List().GetAuthor(), u"Eva"_s);
        QCOMPARE(run.test.prompt.numbers, QList<int>());
        run.result.saveMistakes();
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::CannotSave});
        // The whole list is not replaced by a part of it, nor by the table.
        run.result.saveMistakes();
        run.chooser.paths = {own};
        run.result.saveTable();
        QCOMPARE(run.test.prompt.numbers.mid(1), QList<int>(2, Text::HoldsWholeList));
        QVERIFY(saved.document.OpenDocument(own));
        QCOMPARE(saved.document.List().Count(), 3);
    }
};

QTEST_GUILESS_MAIN(QuizResultTest)
#include "quiz_result_test.moc"
