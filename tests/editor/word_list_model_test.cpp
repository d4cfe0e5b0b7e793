// SPDX-License-Identifier: MIT
#include "editor/list_summary.h"
#include "editor/word_list_model.h"
#include "support/test_document.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class WordListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAgainstASlowVersion();
    void tellsOfChangedRows();
    void columns_data();
    void columns();
    void marks();
    void summaries();
};

void WordListModelTest::rowsAgainstASlowVersion()
{
    for (int count = 0; count <= 4; ++count) {
        for (int point = -2; point <= count + 2; ++point) {
            QList<int> rows; // The entry of each row.
            for (int entry = 0; entry < count; ++entry) {
                rows.append(entry);
            }
            rows.insert(std::clamp(point, 0, count), CRowModel::NoEntry);

            CRowModel model;
            model.SetEntryCount(9);
            model.SetInsertionPoint(point < 0 ? point : std::min(point, 9));
            model.SetEntryCount(count);
            QCOMPARE(model.RowCount(), rows.size());
            for (int row = -1; row <= rows.size(); ++row) {
                QCOMPARE(model.EntryOfRow(row), rows.value(row, CRowModel::NoEntry));
                QCOMPARE(model.IsNewEntryRow(row), row >= 0 && row < rows.size() && rows.at(row) < 0);
            }
            for (int entry = 0; entry < count; ++entry) {
                QCOMPARE(model.RowOfEntry(entry), rows.indexOf(entry));
            }
        }
    }
}

void WordListModelTest::tellsOfChangedRows()
{
    QStringList entries;
    for (int i = 0; i < 40; ++i) {
        entries.append(QStringLiteral("%1|b").arg(i));
    }
    TestDocument test(entries);
    test.settings.showWordNumber = false; // The tester takes numbers that change for a mistake.
    CWordListModel model(test.document, test.settings, test.texts);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto shown = [&] {
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            rows.append(model.index(row, 0).data().toString());
        }
        return rows.mid(0, 6).join(u' ');
    };
    model.SetInsertionPoint(3);
    QCOMPARE(shown(), QStringLiteral("0 1 2 << Ny >> 3 4"));
    QObject::connect(&test.document, &CWin32Doc::Changed, &model, [&](const ListChange &change) {
        model.Apply(change);
        QCOMPARE(model.rowCount(), test.document.List().Count() + 1);
    });
    const auto remove = [&](const std::vector<int> &gone) {
        test.document.Change([&gone](CWordList &list) { list.DeleteEntries(gone); });
    };
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    remove({0, 2, 3, 39});
    test.document.Undo();
    QCOMPARE(shown(), QStringLiteral("0 1 2 << Ny >> 3 4"));
    QCOMPARE(model.index(40, 0).data().toString(), QStringLiteral("39"));
    test.document.Redo();
    QCOMPARE(resets.count(), 0);
    QCOMPARE(shown(), QStringLiteral("1 << Ny >> 4 5 6 7"));
    test.document.Change(
        [](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("x|y")), {.position = 1}); });
    QCOMPARE(shown(), QStringLiteral("1 x << Ny >> 4 5 6"));
    test.document.Change(
        [](CWordList &list) { list.Insert(MakeEntry(QStringLiteral("z|y")), {.position = 3}); });
    QCOMPARE(shown(), QStringLiteral("1 x << Ny >> 4 z 5"));
    model.SetInsertionPoint(3);
    remove({2, 3, 4}); // One block, with the new-entry row in it.
    QCOMPARE(shown(), QStringLiteral("1 x << Ny >> 6 7 8"));
    test.document.Undo();
    QCOMPARE(shown(), QStringLiteral("1 x 4 << Ny >> z 5"));
    test.document.Redo();
    QCOMPARE(shown(), QStringLiteral("1 x << Ny >> 6 7 8"));
    std::vector<int> many;
    for (int entry = 1; entry < 35; ++entry) {
        many.push_back(entry);
    }
    remove(many);
    QCOMPARE(shown(), QStringLiteral("1 << Ny >>"));
}

void WordListModelTest::columns_data()
{
    QTest::addColumn<bool>("numbers");
    QTest::addColumn<bool>("notes");
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("row");
    QTest::newRow("all") << true << true << "Nr:|Svenska|Engelska|Anteckning"
                         << "2|c|d|n";
    QTest::newRow("no numbers") << false << true << "Svenska|Engelska|Anteckning"
                                << "c|d|n";
    QTest::newRow("no notes") << true << false << "Nr:|Svenska|Engelska"
                              << "2|c|d";
    QTest::newRow("languages alone") << false << false << "Svenska|Engelska"
                                     << "c|d";
}

void WordListModelTest::columns()
{
    QFETCH(bool, numbers);
    QFETCH(bool, notes);
    QFETCH(QString, header);
    QFETCH(QString, row);
    TestDocument test(QStringList{QStringLiteral("a|b"), QStringLiteral("c|d|n")});
    test.settings.showWordNumber = numbers;
    test.settings.showNotes = notes;
    test.document.Change([&](CWordList &list) { list.SetLanguage(0, QStringLiteral("  Svenska ")); });
    CWordListModel model(test.document, test.settings, test.texts);
    model.SetInsertionPoint(2);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList titles;
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        titles.append(model.headerData(column, Qt::Horizontal).toString());
        cells.append(model.index(1, column).data().toString());
    }
    QCOMPARE(titles.join(u'|'), header);
    QCOMPARE(cells.join(u'|'), row);
    QCOMPARE(model.rowCount(), 3);
}

void WordListModelTest::marks()
{
    TestDocument test(QStringList{QStringLiteral("a|b|n|2")});
    CWordListModel model(test.document, test.settings, test.texts);
    model.SetInsertionPoint(1);
    model.Rows().pending[1] = QStringLiteral("new");
    const auto row = [&](int number, int role) {
        QStringList values;
        for (int column = 0; column < model.columnCount(); ++column) {
            values.append(model.index(number, column).data(role).toString());
        }
        return values.join(u'|');
    };
    QCOMPARE(row(0, CWordListModel::MarkRole), QStringLiteral("|0|1|"));
    QCOMPARE(row(0, Qt::AccessibleTextRole), QStringLiteral("|a, inte flaggad|b, flaggad|"));
    QCOMPARE(row(1, CWordListModel::MarkRole), QStringLiteral("|4|4|4"));
    QCOMPARE(row(1, Qt::DisplayRole), QStringLiteral("|<< Ny >>|new|<< Ny >>"));
    QCOMPARE(row(1, Qt::EditRole), QStringLiteral("||new|"));
}

void WordListModelTest::summaries()
{
    TestDocument test(QStringList{QStringLiteral("a|b||1"), QStringLiteral("c|d"), QStringLiteral("e|f")});
    CListSummary summary(test.document, test.texts);
    const QString all =
        QStringLiteral("3 glosor, 1 (33%) glosor på Svenska och 0 (0%) glosor på Engelska är flaggade.");
    QCOMPARE(summary.Describe(0, 0, -1), all);
    QCOMPARE(summary.Describe(1, 1, 1), QStringLiteral("Glosa nummer 2. ") + all);
    QCOMPARE(summary.Describe(1, 0, -1), QStringLiteral("Här kommer nästa glosa att läggas till."));
    QCOMPARE(summary.Describe(3, 2, 0), QStringLiteral("2 glosor markerade. ") + all);
    test.document.Change([&](CWordList &list) { list.DeleteAll(); });
    QVERIFY(summary.Describe(0, 0, -1).startsWith(QStringLiteral("0 glosor, 0 (0%)")));
}

QTEST_GUILESS_MAIN(WordListModelTest)
#include "word_list_model_test.moc"
