// SPDX-License-Identifier: MIT
#include "quiz/change_entry.h"
#include "support/test_session.h"

#include <QAbstractItemModelTester>

namespace {

struct Change : TestSession
{
    Change() : TestSession(u"hund|dog|%1 & %n|1,katt|kat"_s), entries(session, test.texts, test.prompt) { }
    QString Line(int row) const { return entries.index(row).data().toString(); }

    CChangeEntry entries;
};

}

class ChangeEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesAndChanges()
    {
        Change run;
        const QAbstractItemModelTester tester(&run.entries);
        QCOMPARE(run.Line(0), u"hund - dog - %1 & %n"_s);
        QCOMPARE(run.Line(1), u"katt - kat - "_s);
        run.test.document.Change([](CWordList &list) { list.SetLanguage(0, u"A & B"_s); });
        QCOMPARE(run.entries.label(0), u"&1 A && B:"_s);
        QCOMPARE(run.entries.label(1), u"&2 Engelska:"_s);

        const QSignalSpy changed(&run.entries, &QAbstractItemModel::dataChanged);
        QVERIFY(run.entries.change(0, {u" jycke*hund "_s, u"dog "_s, u" n "_s}));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(run.Line(0), u"jycke * hund - dog - n"_s);
        QCOMPARE(run.Entries(), u"jycke * hund|dog|n|1,katt|kat"_s);
        QVERIFY(!run.entries.change(0, {u" * "_s, u"x"_s, {}}));
        QVERIFY(!run.entries.change(0, {u"x"_s, u"[ ]"_s, {}}));
        QVERIFY(run.entries.change(1, run.entries.fieldsOf(1))); // Nothing differs.
        QCOMPARE(run.test.document.UndoCount(), 2); // With that of the language.
    }

    void leaving()
    {
        using enum PromptAnswer;
        const struct
        {
            QString term1;
            QList<PromptAnswer> answers;
            bool mayLeave;
            QString line;
        } rows[] = {
            {u" katt "_s, {}, true, u"katt - kat - "_s}, // nothing would change
            {u"hane"_s, {Yes}, true, u"hane - kat - "_s}, {u"hane"_s, {No}, true, u"katt - kat - "_s},
            {u"hane"_s, {Cancel}, false, u"katt - kat - "_s},
            {u" "_s, {Yes}, false, u"katt - kat - "_s}, // can't be stored
        };
        for (const auto &row : rows) {
            Change run;
            run.test.prompt.answers = row.answers;
            QCOMPARE(run.entries.mayLeave(1, {row.term1, u"kat"_s, {}}), row.mayLeave);
            QCOMPARE(run.test.prompt.numbers, QList<int>(row.answers.size(), Text::SaveChangedEntry));
            QCOMPARE(run.Line(1), row.line);
        }
    }
};

QTEST_GUILESS_MAIN(ChangeEntryTest)
#include "change_entry_test.moc"
