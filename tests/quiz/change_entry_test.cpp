// SPDX-License-Identifier: MIT
#include "quiz/change_entry.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "settings/quiz_settings.h"
#include "support/test_document.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace {

struct Change
{
    TestDocument test{QStringList{QStringLiteral("hund|dog|%1 & %n|1"), QStringLiteral("katt|kat")}};
    QuizSettings settings;
    CRandom random{1};
    CQuizSession session;
    CChangeEntry entries;

    Change()
        : session(test.document, InListOrder(settings), random, {}), entries(session, test.texts, test.prompt)
    {
    }
    static const QuizSettings &InListOrder(QuizSettings &settings)
    {
        settings.order = QuizOrder::AsInList;
        settings.includeFlaggedWords = IncludeFlagged::Always;
        return settings;
    }
    QString Line(int row) const { return entries.index(row).data().toString(); }
};

}

class ChangeEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines();
    void changing();
    void emptyTerms();
    void leaving_data();
    void leaving();
    void judgedAnewInOneStep();
};

void ChangeEntryTest::lines()
{
    Change run;
    const QAbstractItemModelTester tester(&run.entries);
    QCOMPARE(run.Line(0), QStringLiteral("hund - dog - %1 & %n"));
    QCOMPARE(run.Line(1), QStringLiteral("katt - kat - "));
    run.test.document.Change([](CWordList &list) { list.SetLanguage(0, QStringLiteral("A & B")); });
    QCOMPARE(run.entries.label(0), QStringLiteral("&1 A && B:"));
    QCOMPARE(run.entries.label(1), QStringLiteral("&2 Engelska:"));
}

void ChangeEntryTest::changing()
{
    Change run;
    const QSignalSpy changed(&run.entries, &QAbstractItemModel::dataChanged);
    QVERIFY(
        run.entries.change(0, {QStringLiteral(" jycke*hund "), QStringLiteral("dog "), QStringLiteral(" n ")}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(run.Line(0), QStringLiteral("jycke * hund - dog - n"));
    QCOMPARE(Describe(run.test.document.List()),
        (QStringList{QStringLiteral("jycke * hund|dog|n|1"), QStringLiteral("katt|kat")}));
}

void ChangeEntryTest::emptyTerms()
{
    Change run;
    const QStringList before = Describe(run.test.document.List());
    QVERIFY(!run.entries.change(0, {QStringLiteral(" * "), QStringLiteral("x"), {}}));
    QVERIFY(!run.entries.change(0, {QStringLiteral("x"), QStringLiteral("[ ]"), {}}));
    QVERIFY(run.entries.change(1, run.entries.fieldsOf(1))); // Nothing differs.
    QCOMPARE(Describe(run.test.document.List()), before);
    QCOMPARE(run.test.document.UndoCount(), 0);
    QVERIFY(run.test.document.List().IsSaved());
}

void ChangeEntryTest::leaving_data()
{
    QTest::addColumn<QString>("term1");
    QTest::addColumn<QList<PromptAnswer>>("answers");
    QTest::addColumn<bool>("mayLeave");
    QTest::addColumn<bool>("stored");
    using Answers = QList<PromptAnswer>;
    QTest::newRow("nothing would change") << " katt " << Answers() << true << false;
    QTest::newRow("stored") << "hane" << Answers{PromptAnswer::Yes} << true << true;
    QTest::newRow("thrown away") << "hane" << Answers{PromptAnswer::No} << true << false;
    QTest::newRow("stays") << "hane" << Answers{PromptAnswer::Cancel} << false << false;
    QTest::newRow("can't be stored") << " " << Answers{PromptAnswer::Yes} << false << false;
}

void ChangeEntryTest::leaving()
{
    QFETCH(QString, term1);
    QFETCH(QList<PromptAnswer>, answers);
    QFETCH(bool, mayLeave);
    QFETCH(bool, stored);
    Change run;
    run.test.prompt.answers = answers;
    QCOMPARE(run.entries.mayLeave(1, {term1, QStringLiteral("kat"), {}}), mayLeave);
    QCOMPARE(run.test.prompt.numbers, QList<int>(answers.size(), Text::SaveChangedEntry));
    QCOMPARE(run.Line(1), stored ? QStringLiteral("hane - kat - ") : QStringLiteral("katt - kat - "));
}

void ChangeEntryTest::judgedAnewInOneStep()
{
    Change run;
    run.session.recordAnswer(0, QStringLiteral("doggy"));
    run.session.recordAnswer(1, QStringLiteral("cat"));
    const QStringList before = Describe(run.test.document.List());
    QVERIFY(run.entries.change(1, {QStringLiteral("katt"), QStringLiteral("cat"), {}}));
    QVERIFY(run.entries.change(0, {QStringLiteral("hund"), QStringLiteral("dog*doggy"), {}}));
    run.session.recheckAll();
    QCOMPARE(run.session.totalRight(), 2);
    QCOMPARE(run.session.totalWrong(), 0);
    QCOMPARE(run.session.applyFlags({.flag = 100}), 1);
    QCOMPARE(run.test.document.UndoCount(), 1);
    run.test.document.Undo();
    QCOMPARE(Describe(run.test.document.List()), before);
}

QTEST_GUILESS_MAIN(ChangeEntryTest)
#include "change_entry_test.moc"
