// SPDX-License-Identifier: MIT
#include "editor/list_summary.h"
#include "editor/word_list_model.h"
#include "support/test_document.h"

#include <QAbstractItemModelTester>
#include <QTest>

class WordListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data();
    void columns();
    void flags();
    void summaries();
};

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
    test.document.BeginChange().SetLanguage(0, QStringLiteral("  Svenska "));
    CWordListModel model(test.document, test.settings, test.texts);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList titles;
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        titles.append(model.headerData(column, Qt::Horizontal).toString());
        cells.append(model.index(1, column).data().toString());
    }
    QCOMPARE(titles.join(u'|'), header);
    QCOMPARE(cells.join(u'|'), row);
    QCOMPARE(model.rowCount(), 2);
}

void WordListModelTest::flags()
{
    TestDocument test(QStringList{QStringLiteral("a|b|n|2")});
    const CWordListModel model(test.document, test.settings, test.texts);
    const auto flag = [&](int column) { return model.index(0, column).data(CWordListModel::FlagRole); };
    QCOMPARE(flag(0), QVariant());
    QCOMPARE(flag(1), QVariant(false));
    QCOMPARE(flag(2), QVariant(true));
    QCOMPARE(flag(3), QVariant());
    QCOMPARE(model.index(0, 2).data(Qt::AccessibleTextRole).toString(), QStringLiteral("b, flaggad"));
}

void WordListModelTest::summaries()
{
    TestDocument test(QStringList{QStringLiteral("a|b||1"), QStringLiteral("c|d"), QStringLiteral("e|f")});
    const auto summary = [&](const std::vector<int> &selected) {
        return CListSummary(test.document, test.texts).Describe(selected);
    };
    const QString all =
        QStringLiteral("3 glosor, 1 (33%) glosor på Svenska och 0 (0%) glosor på Engelska är flaggade.");
    QCOMPARE(summary({}), all);
    QCOMPARE(summary({1}), QStringLiteral("Glosa nummer 2. ") + all);
    QCOMPARE(summary({0, 2}), QStringLiteral("2 glosor markerade. ") + all);
    test.document.BeginChange().DeleteAll();
    QVERIFY(summary({}).startsWith(QStringLiteral("0 glosor, 0 (0%)")));
}

QTEST_GUILESS_MAIN(WordListModelTest)
#include "word_list_model_test.moc"
