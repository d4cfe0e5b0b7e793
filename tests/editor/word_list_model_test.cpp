// SPDX-License-Identifier: MIT
#include "editor/list_summary.h"
#include "editor/word_list_model.h"
#include "support/test_document.h"

#include <QAbstractItemModelTester>

class WordListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAgainstASlowVersion()
    {
        for (int count = 0; count <= 4; ++count) {
            for (int point = -2; point <= count + 2; ++point) {
                QList<int> rows; // The entry of each row.
                for (int entry = 0; entry < count; ++entry) {
                    rows.append(entry);
                }
                rows.insert(std::clamp(point, 0, count), NoEntry);

                CRowModel model;
                model.SetEntryCount(9);
                model.SetInsertionPoint(point < 0 ? point : std::min(point, 9));
                model.SetEntryCount(count);
                QCOMPARE(model.RowCount(), rows.size());
                for (int row = -1; row <= rows.size(); ++row) {
                    QCOMPARE(model.EntryOfRow(row), rows.value(row, NoEntry));
                    QCOMPARE(model.IsNewEntryRow(row), row >= 0 && row < rows.size() && rows.at(row) < 0);
                }
                for (int entry = 0; entry < count; ++entry) {
                    QCOMPARE(model.RowOfEntry(entry), rows.indexOf(entry));
                }
            }
        }
    }

    void tellsOfChangedRows()
    {
        TestDocument test(NumberedEntries(40, u"%1|b"_s));
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
        QCOMPARE(shown(), u"0 1 2 << Ny >> 3 4"_s);
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
        QCOMPARE(shown(), u"0 1 2 << Ny >> 3 4"_s);
        QCOMPARE(model.index(40, 0).data().toString(), u"39"_s);
        test.document.Redo();
        QCOMPARE(resets.count(), 0);
        QCOMPARE(shown(), u"1 << Ny >> 4 5 6 7"_s);
        test.document.Change([](CWordList &list) { list.Insert(MakeEntry(u"x|y"_s), {.position = 1}); });
        QCOMPARE(shown(), u"1 x << Ny >> 4 5 6"_s);
        test.document.Change([](CWordList &list) { list.Insert(MakeEntry(u"z|y"_s), {.position = 3}); });
        QCOMPARE(shown(), u"1 x << Ny >> 4 z 5"_s);
        model.SetInsertionPoint(3);
        remove({2, 3, 4}); // One block, with the new-entry row in it.
        QCOMPARE(shown(), u"1 x << Ny >> 6 7 8"_s);
        test.document.Undo();
        QCOMPARE(shown(), u"1 x 4 << Ny >> z 5"_s);
        test.document.Redo();
        QCOMPARE(shown(), u"1 x << Ny >> 6 7 8"_s);
        std::vector<int> many;
        for (int entry = 1; entry < 35; ++entry) {
            many.push_back(entry);
        }
        remove(many);
        QCOMPARE(shown(), u"1 << Ny >>"_s);
    }

    void columns()
    {
        for (const bool numbers : {true, false}) {
            for (const bool notes : {true, false}) {
                TestDocument test(u"a|b,c|d|n"_s);
                test.settings.showWordNumber = numbers;
                test.settings.showNotes = notes;
                test.document.Change([](CWordList &list) { list.SetLanguage(0, u"  Svenska "_s); });
                CWordListModel model(test.document, test.settings, test.texts);
                model.SetInsertionPoint(2);
                const QAbstractItemModelTester tester(
                    &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
                QString titles;
                QString cells;
                for (int column = 0; column < model.columnCount(); ++column) {
                    titles += u'|' + model.headerData(column, Qt::Horizontal).toString();
                    cells += u'|' + model.index(1, column).data().toString();
                }
                QCOMPARE(titles,
                    u"%1|Svenska|Engelska%2"_s.arg(
                        numbers ? u"|Nr:"_s : u""_s, notes ? u"|Anteckning"_s : u""_s));
                QCOMPARE(cells, u"%1|c|d%2"_s.arg(numbers ? u"|2"_s : u""_s, notes ? u"|n"_s : u""_s));
                QCOMPARE(model.rowCount(), 3);
            }
        }
    }

    void marks()
    {
        TestDocument test(u"a|b|n|2"_s);
        CWordListModel model(test.document, test.settings, test.texts);
        model.SetInsertionPoint(1);
        model.Rows().pending[1] = u"new"_s;
        const auto row = [&](int number, int role) {
            QStringList values;
            for (int column = 0; column < model.columnCount(); ++column) {
                values.append(model.index(number, column).data(role).toString());
            }
            return values.join(u'|');
        };
        QCOMPARE(row(0, CWordListModel::MarkRole), u"|0|1|"_s);
        QCOMPARE(row(0, Qt::AccessibleTextRole), u"|a, inte flaggad|b, flaggad|"_s);
        QCOMPARE(row(1, CWordListModel::MarkRole), u"|4|4|4"_s);
        QCOMPARE(row(1, Qt::DisplayRole), u"|<< Ny >>|new|<< Ny >>"_s);
        QCOMPARE(row(1, Qt::EditRole), u"||new|"_s);
    }

    void summaries()
    {
        TestDocument test(u"a|b||1,c|d,e|f"_s);
        CListSummary summary(test.document, test.texts);
        const QString all = u"3 glosor, 1 (33%) glosor på Svenska och 0 (0%) glosor på Engelska är flaggade."_s;
        QCOMPARE(summary.Describe(0, 0, -1), all);
        QCOMPARE(summary.Describe(1, 1, 1), u"Glosa nummer 2. "_s + all);
        QCOMPARE(summary.Describe(1, 0, -1), u"Här kommer nästa glosa att läggas till."_s);
        QCOMPARE(summary.Describe(3, 2, 0), u"2 glosor markerade. "_s + all);
        test.document.Change([&](CWordList &list) { list.DeleteAll(); });
        QVERIFY(summary.Describe(0, 0, -1).startsWith(u"0 glosor, 0 (0%)"_s));
    }
};

QTEST_GUILESS_MAIN(WordListModelTest)
#include "word_list_model_test.moc"
