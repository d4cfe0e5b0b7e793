// SPDX-License-Identifier: MIT
#include "editor/clipboard_text.h"
#include "editor/list_clipboard.h"
#include "support/test_editor_view.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace {

struct Clipboard
{
    explicit Clipboard(const QStringList &entries) : test(entries) { }

    QStringList Entries() const { return Describe(test.document.List()); }

    TestDocument test;
    CTestEditorView view{test.document};
    CTestClipboard system;
    QStringList opened;
    CListClipboard clipboard{
        view, test.document, system, test.texts, [this](const QString &path) { opened.append(path); }};
};

QStringList List(const char *entries)
{
    return QString::fromUtf8(entries).split(u' ');
}

}

class ListClipboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyAndPaste();
    void pasteNothing();
    void pasteFiles();
    void cutAndColumns();
};

void ListClipboardTest::copyAndPaste()
{
    Clipboard run(List("a|1|x|1 b|2||2 c|3 d|4"));
    run.view.SetInsertionPoint(1);
    run.view.selected = {0, 1, 3};
    run.clipboard.Copy(AllColumns);
    QCOMPARE(run.test.document.UndoCount(), 0);
    run.test.settings.newwordflag = true;
    run.test.settings.sortNewWords = true;
    run.view.SetInsertionPoint(3);
    QVERIFY(run.clipboard.CanPaste());
    run.clipboard.Paste();
    QCOMPARE(run.Entries(), List("a|1|x|1 b|2||2 c|3 a|1|x|1 b|2||2 d|4 d|4"));
    QCOMPARE(run.view.InsertionPoint(), 6);
    QCOMPARE(run.view.selected, (std::vector{3, 4, 5}));
    QCOMPARE(run.view.shown, 5);
    QCOMPARE(run.view.status, QStringLiteral("3 glosor klistrades in."));
    QVERIFY(run.test.prompt.numbers.isEmpty()); // Nobody asks about similar entries.
    QVERIFY(run.test.document.IsModified());

    // Text from elsewhere follows below; each paste is a step for undo.
    run.system.SetText(QStringLiteral("e - 5\nno entry\nf - (6)\n"));
    run.clipboard.Paste();
    QCOMPARE(run.Entries().mid(5), List("d|4 e|5 f|(6) d|4"));
    QCOMPARE(run.test.document.UndoCount(), 2);
    run.test.document.Undo();
    QCOMPARE(run.Entries().size(), 7);
    run.test.document.Undo();
    QCOMPARE(run.Entries(), List("a|1|x|1 b|2||2 c|3 d|4"));
    QCOMPARE(run.view.InsertionPoint(), 3);
}

void ListClipboardTest::pasteNothing()
{
    Clipboard run(List("a|1 b|2"));
    run.view.selected = {1};
    QVERIFY(!run.clipboard.CanPaste());
    run.clipboard.Paste();
    run.system.SetText(QStringLiteral("one word"));
    run.clipboard.Paste();
    QCOMPARE(run.view.status, QStringLiteral("Inga glosor kunde klistras in."));
    QCOMPARE(run.test.document.UndoCount(), 0);
    QCOMPARE(run.view.selected, std::vector{1});
}

void ListClipboardTest::pasteFiles()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a - b.gls")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    Clipboard run(List("a|1"));
    const auto paste = [&](const QStringList &paths) {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const QString &path : paths) {
            urls.append(QUrl::fromLocalFile(path));
        }
        data->setUrls(urls);
        data->setText(paths.join(u'\n')); // As file managers do.
        run.system.SetData(std::move(data));
        run.clipboard.Paste();
    };
    paste({file.fileName(), file.fileName()});
    paste({folder.path()});
    paste({folder.filePath(QStringLiteral("c-d"))});
    QVERIFY(run.opened.isEmpty());
    paste({file.fileName()});
    QCOMPARE(run.opened, QStringList{file.fileName()});
    QCOMPARE(run.Entries(), List("a|1"));
}

void ListClipboardTest::cutAndColumns()
{
    Clipboard run(List("a|1|x b|2|y c|3"));
    run.view.selected = {0, 1, 2};
    run.clipboard.Copy(1);
    QCOMPARE(run.system.Data()->text(), QStringLiteral("1\r\n2\r\n3\r\n"));
    run.clipboard.Copy(2);
    QCOMPARE(run.system.Data()->text(), QStringLiteral("x\r\ny\r\n\r\n"));
    run.clipboard.Paste(); // A column is no entries.
    QCOMPARE(run.Entries().size(), 3);
    run.view.selected = {0, 1};
    run.clipboard.Cut();
    QCOMPARE(run.system.Data()->text(), QStringLiteral("a\t1\tx\r\nb\t2\ty\r\n"));
    QCOMPARE(run.view.deletions, 1);
    // What is dropped on either side of the new-entry row stays there.
    run.view.SetInsertionPoint(1);
    run.clipboard.Insert(*run.system.Data(), 2);
    QCOMPARE(run.view.InsertionPoint(), 1);
    QCOMPARE(run.Entries(), List("a|1|x a|1|x b|2|y b|2|y c|3"));
    QCOMPARE(run.view.selected, (std::vector<int>{1, 2}));
    run.test.document.Undo();
    // With nothing selected the clipboard keeps what it has.
    run.view.selected.clear();
    run.clipboard.Copy(AllColumns);
    run.view.SetInsertionPoint(0);
    run.clipboard.Paste();
    QCOMPARE(run.Entries(), List("a|1|x b|2|y a|1|x b|2|y c|3"));
}

QTEST_GUILESS_MAIN(ListClipboardTest)
#include "list_clipboard_test.moc"
