// SPDX-License-Identifier: MIT
#include "quiz/quiz_result.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A quiz over a list, answered, and its result.
struct TestResult
{
    TestDocument test;
    QuizSettings settings;
    ResultSettings resultSettings;
    CScriptedChooser chooser;
    CRandom random{1};
    CQuizSession session;
    CQuizResult result;

    explicit TestResult(const QStringList &entries, ResultMode mode = ResultMode::AfterQuiz)
        : test(entries), settings(InOrder()), session(test.document, settings, random, {}),
          result(session, {test.texts, test.prompt, chooser, resultSettings}, mode)
    {
    }

    static QuizSettings InOrder()
    {
        QuizSettings settings;
        settings.order = QuizOrder::AsInList;
        settings.includeFlaggedWords = IncludeFlagged::Always;
        return settings;
    }
    void Answer(int word, const QStringList &answers)
    {
        for (const QString &answer : answers) {
            session.recordAnswer(word, answer);
        }
    }
};

QStringList Animals()
{
    return {QStringLiteral("hund|dog"), QStringLiteral("katt|cat||1"), QStringLiteral("häst|лошадь")};
}

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

class QuizResultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table();
    void duringAQuiz();
    void flagLine_data();
    void flagLine();
    void contradictingLimits();
    void savedTable();
    void savedMistakes();
};

void QuizResultTest::table()
{
    TestResult run(Animals());
    run.Answer(0, {QStringLiteral("x"), QStringLiteral("%s"), QStringLiteral("dog")});
    run.Answer(1, {QString(), QStringLiteral("cat"), QStringLiteral("cat"), QStringLiteral("cat")});
    QCOMPARE(run.result.table(),
        QStringLiteral("Svenska\tEngelska\tProcent\tFelaktiga svar\r\n"
                       "hund\tdog\t1 av 3 (33%)\t\"x\", \"%s\"\r\n"
                       "katt\tcat\t3 av 4 (75%)\t\"\"\r\n"
                       "häst\tлошадь\t-\t\r\n"
                       "Totalt 3 glosor. Av 7 svar är 4 rätt (57%)."));
    QCOMPARE(run.result.rightShare(), 571);
    const auto percent = [&](int row) {
        return run.result.model().index(row, 2).data(CQuizResultModel::PercentRole).toInt();
    };
    QCOMPARE((QList<int>{percent(0), percent(1), percent(2)}), (QList<int>{33, 75, 0}));
}

void QuizResultTest::duringAQuiz()
{
    TestResult run(Animals(), ResultMode::DuringQuiz);
    run.Answer(1, {QStringLiteral("x")});
    QCOMPARE(run.result.table(),
        QStringLiteral(
            "Svenska\tProcent\tFelaktiga svar\r\nhund\t-\t\r\nkatt\t0 av 1 (0%)\t\"x\"\r\nhäst\t-\t\r\n"
            "Totalt 3 glosor. Av 1 svar är 0 rätt (0%)."));
    QVERIFY(!run.result.showsRightAnswers() && !run.result.changesFlags());
}

void QuizResultTest::flagLine_data()
{
    QTest::addColumn<QList<int>>("limits"); // flag, unflag; -1 is off
    QTest::addColumn<int>("unaskedTo");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("flags"); // Those of the entries afterwards.
    QTest::newRow("factory limits") << QList<int>{100, 0} << -1
                                    << "1 glosor kommer att flaggas, 1 glosor kommer att avflaggas."
                                    << "1--";
    QTest::newRow("only flags") << QList<int>{100, -1} << -1 << "1 glosor kommer att flaggas."
                                << "11-";
    QTest::newRow("only unflags") << QList<int>{-1, 0} << -1 << "1 glosor kommer att avflaggas."
                                  << "---";
    QTest::newRow("nothing") << QList<int>{-1, -1} << -1 << "Inga glosor kommer att ändras."
                             << "-1-";
    QTest::newRow("not asked") << QList<int>{-1, -1} << 1 << "1 glosor kommer att flaggas."
                               << "-11";
}

void QuizResultTest::flagLine()
{
    QFETCH(QList<int>, limits);
    QFETCH(int, unaskedTo);
    QFETCH(QString, line);
    QFETCH(QString, flags);
    TestResult run(Animals());
    run.Answer(0, {QStringLiteral("dog")});
    run.Answer(1, {QStringLiteral("x")});
    ResultSettings &settings = run.resultSettings;
    settings.flagWord = limits[0] >= 0;
    settings.flagWordLimit = limits[0];
    settings.unFlagWord = limits[1] >= 0;
    settings.unFlagWordLimit = limits[1];
    settings.changeUnasked = unaskedTo >= 0;
    settings.changeUnaskedTo = FlagState(unaskedTo);
    QCOMPARE(run.result.flagLine(), line);
    run.result.applyFlags();
    QString found;
    for (int index = 0; index < 3; ++index) {
        found += run.test.document.List().Entry(index).GetFlag(0) ? u'1' : u'-';
    }
    QCOMPARE(found, flags);
}

void QuizResultTest::contradictingLimits()
{
    ResultSettings settings;
    QVERIFY(!flagLimitsContradict(settings)); // 100 and 0.
    settings.flagWordLimit = 50;
    settings.unFlagWordLimit = 49;
    QVERIFY(!flagLimitsContradict(settings));
    settings.unFlagWordLimit = 50;
    QVERIFY(flagLimitsContradict(settings));
    settings.unFlagWord = false;
    QVERIFY(!flagLimitsContradict(settings));
}

void QuizResultTest::savedTable()
{
    QTemporaryDir folder;
    TestResult run(Animals());
    run.Answer(0, {QStringLiteral("é")});
    const QString plain = folder.filePath(QStringLiteral("plain.txt"));
    const QString unicode = folder.filePath(QStringLiteral("unicode.txt"));
    const QString nowhere = folder.filePath(QStringLiteral("none/x.txt"));
    run.chooser.paths = {QString(), plain, nowhere};
    run.result.saveTable(); // Cancelled.
    run.result.saveTable();
    QVERIFY(Content(plain).startsWith("Svenska\tEngelska\tProcent\tFelaktiga svar\r\nhund\tdog\t0 av 1 (0%)\t"
                                      "\"\xE9\"\r\n"));
    QVERIFY(Content(plain).contains("h\xE4st\t??????\t-"));
    run.result.saveTable();
    QCOMPARE(run.test.prompt.numbers, (QList<int>{Text::SavedWithoutCharacters, Text::CannotSave}));
    QCOMPARE(run.chooser.asked.at(0).filters,
        (QStringList{
            QStringLiteral("Textdokument (*.txt)"), QStringLiteral("Textdokument (Unicode) (*.txt)")}));
    QCOMPARE(run.chooser.asked.at(0).defaultSuffix, QStringLiteral("txt"));

    run.chooser.paths = {unicode};
    run.chooser.filter = 1;
    run.result.saveTable();
    QVERIFY(Content(unicode).startsWith(QByteArray("\xFF\xFES\0v\0e\0", 8)));
    QCOMPARE(run.test.prompt.numbers.size(), 2);
}

void QuizResultTest::savedMistakes()
{
    QTemporaryDir folder;
    TestResult run(Animals());
    run.Answer(0, {QStringLiteral("x"), QStringLiteral("dog")});
    run.Answer(1, {QStringLiteral("cat")});
    run.Answer(2, {QStringLiteral("x")});
    run.test.document.Change([&](CWordList &list) { list.SetAuthor(QStringLiteral("Eva")); });
    const QString own = folder.filePath(QStringLiteral("djur.gls"));
    QVERIFY(run.test.document.OnSaveDocument(own));

    const QString path = folder.filePath(QStringLiteral("fel.gls"));
    run.chooser.paths = {
        path, folder.filePath(QStringLiteral("none/x.gls")), folder.filePath(QStringLiteral("./djur.gls"))};
    run.result.saveMistakes();
    QCOMPARE(run.chooser.asked.at(0).start, folder.filePath(QStringLiteral("djur – fel.gls")));
    QCOMPARE(run.test.document.Path(), own);
    TestDocument saved;
    QVERIFY(saved.document.OpenDocument(path));
    QCOMPARE(Describe(saved.document.List()),
        (QStringList{QStringLiteral("hund|dog"), QStringLiteral("häst|лошадь")}));
    QCOMPARE(saved.document.List().GetAuthor(), QStringLiteral("Eva"));
    QCOMPARE(run.test.prompt.numbers, QList<int>());
    run.result.saveMistakes();
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::CannotSave});
    // The whole list is not replaced by a part of it.
    run.result.saveMistakes();
    QCOMPARE(run.test.prompt.numbers.last(), int(Text::HoldsWholeList));
    QVERIFY(saved.document.OpenDocument(own));
    QCOMPARE(saved.document.List().Count(), 3);
}

QTEST_GUILESS_MAIN(QuizResultTest)
#include "quiz_result_test.moc"
