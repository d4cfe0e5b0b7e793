// SPDX-License-Identifier: MIT
#include "editor/duplicates.h"
#include "support/test_editor_view.h"

#include <QRegularExpression>

namespace {

struct Editor : TestEditor
{
    using TestEditor::TestEditor;

    /// Searches with these answers and returns what was asked of: "language entry other", counted as shown.
    QStringList Find(const QList<PromptAnswer> &answers)
    {
        test.prompt.answers = answers;
        test.prompt.numbers.clear();
        test.prompt.texts.clear();
        duplicates.Find();
        QStringList pairs;
        for (const QString &text : std::as_const(test.prompt.texts)) {
            const auto found =
                QRegularExpression(u"på (\\w+), glosa nummer (\\d+) och nummer (\\d+)"_s).match(text);
            if (found.hasMatch()) {
                pairs.append(found.captured(1) + u' ' + found.captured(2) + u' ' + found.captured(3));
            }
        }
        return pairs;
    }

    CDuplicates duplicates{view, test.document, test.settings, test.texts, test.prompt};
};

}

class DuplicatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkingThroughAllPairs()
    {
        using enum PromptAnswer;
        Editor run(u"hus*hem|house,hem|home,x|house,y|house"_s);
        const QString first = u"Svenska 1 2"_s;
        QCOMPARE(run.Find({Yes}), QStringList{first});
        QVERIFY(run.test.prompt.texts.first().endsWith(
            u":\r\n\r\nhus * hem\r\n\r\nhem\r\n\r\nVill du markera dessa glosor?"));
        QCOMPARE(run.view.selected, (std::vector<int>{0, 1}));
        QCOMPARE(run.view.shown, 1);
        // The same pair once more, since it is still there; another stop leaves the search there.
        QCOMPARE(run.Find({No, No, Cancel}), (QStringList{first, u"Engelska 1 3"_s, u"Engelska 1 4"_s}));
        QCOMPARE(run.Find({No, No, No, No}),
            (QStringList{u"Engelska 1 4"_s, u"Engelska 3 4"_s, first, u"Engelska 1 3"_s}));
        QCOMPARE(run.test.prompt.numbers.last(), int(Text::AllDuplicatesSeen));
        // Gone when it is no pair any more; what lies behind the list's end is no place to go on from.
        run.test.document.Change([](CWordList &list) { list.DeleteEntries(std::array{2, 3}); });
        QCOMPARE(run.Find({Yes}), QStringList{first});
        run.test.document.ReplaceList(MakeList("a|b"));
        QVERIFY(run.Find({}).isEmpty());
        QCOMPARE(run.test.prompt.numbers, QList<int>{Text::NoDuplicates});
    }

    void makingOneEntry()
    {
        Editor run(u"a|1,b|2,c|3"_s);
        run.view.selected = {1};
        run.duplicates.MakeOne();
        run.view.selected = {};
        run.duplicates.MakeOne();
        QCOMPARE(run.test.document.UndoCount(), 0);
        run.view.selected = {0, 2};
        run.duplicates.MakeOne();
        QCOMPARE(run.Entries(), u"a * c|1 * 3,b|2"_s);
        QCOMPARE(run.view.selected, std::vector<int>{0});
        QCOMPARE(run.test.document.UndoCount(), 1);
    }

    void mergingAll()
    {
        const auto merge = [](int count, int undoSize, QList<PromptAnswer> answers) {
            QStringList entries = {u"same|x"_s};
            for (int i = 1; i < count; ++i) {
                entries.append(u"%1|y%2"_s.arg(i == 1 ? u"same"_s : QString::number(i)).arg(i));
            }
            Editor run(entries);
            run.test.settings.undoSize = undoSize;
            run.test.prompt.answers = std::move(answers);
            if (run.duplicates.MayMergeAll()) {
                run.duplicates.MergeAll();
            }
            return std::pair(run.test.prompt.numbers, count - run.test.document.List().Count());
        };
        using enum PromptAnswer;
        QCOMPARE(merge(399, 10, {}), std::pair(QList<int>{Text::EntriesMerged}, 1));
        QCOMPARE(merge(400, 10, {No}), std::pair(QList<int>{Text::ReallyMergeAll}, 0));
        QCOMPARE(merge(3, 0, {Yes}), std::pair(QList<int>{Text::ReallyMergeAll, Text::EntriesMerged}, 1));
        QCOMPARE(merge(1, 10, {}), std::pair(QList<int>{Text::NoDuplicates}, 0));
    }
};

QTEST_GUILESS_MAIN(DuplicatesTest)
#include "duplicates_test.moc"
