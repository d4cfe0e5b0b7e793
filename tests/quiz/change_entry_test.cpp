// SPDX-License-Identifier: MIT
#include "quiz/change_entry.h"
#include "quiz/quiz_session.h"
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

    Change() : session(test.document, InListOrder(settings), random, {}), entries(session, test.texts) { }
    static const QuizSettings &InListOrder(QuizSettings &settings)
    {
        settings.order = 0;
        settings.includeFlaggedWords = 1;
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
    void judgedAnewInOneStep();
};

void ChangeEntryTest::lines()
{
    Change run;
    const QAbstractItemModelTester tester(&run.entries);
    QCOMPARE(run.Line(0), QStringLiteral("hund - dog - %1 & %n"));
    QCOMPARE(run.Line(1), QStringLiteral("katt - kat - "));
    run.test.document.Change([&](CWordList &list) { list.SetLanguage(0, QStringLiteral("A & B")); });
    QCOMPARE(run.entries.Label(0), QStringLiteral("&1 A && B:"));
    QCOMPARE(run.entries.Label(1), QStringLiteral("&2 Engelska:"));
}

void ChangeEntryTest::changing()
{
    Change run;
    const QSignalSpy changed(&run.entries, &QAbstractItemModel::dataChanged);
    QVERIFY(
        run.entries.Change(0, {QStringLiteral(" jycke*hund "), QStringLiteral("dog "), QStringLiteral(" n ")}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(run.Line(0), QStringLiteral("jycke * hund - dog - n"));
    QCOMPARE(Describe(run.test.document.List()),
        (QStringList{QStringLiteral("jycke * hund|dog|n|1"), QStringLiteral("katt|kat")}));
}

void ChangeEntryTest::emptyTerms()
{
    Change run;
    const QStringList before = Describe(run.test.document.List());
    QVERIFY(!run.entries.Change(0, {QStringLiteral(" * "), QStringLiteral("x"), {}}));
    QVERIFY(!run.entries.Change(0, {QStringLiteral("x"), QStringLiteral("[ ]"), {}}));
    QVERIFY(run.entries.Change(1, run.entries.FieldsOf(1))); // Nothing differs.
    QCOMPARE(Describe(run.test.document.List()), before);
    QCOMPARE(run.test.document.UndoCount(), 0);
    QVERIFY(run.test.document.List().IsSaved());
}

void ChangeEntryTest::judgedAnewInOneStep()
{
    Change run;
    run.session.recordAnswer(0, QStringLiteral("doggy"));
    run.session.recordAnswer(1, QStringLiteral("cat"));
    const QStringList before = Describe(run.test.document.List());
    QVERIFY(run.entries.Change(1, {QStringLiteral("katt"), QStringLiteral("cat"), {}}));
    QVERIFY(run.entries.Change(0, {QStringLiteral("hund"), QStringLiteral("dog*doggy"), {}}));
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
