// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "editor/arranging.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "generator.h"
#include "platform/random.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"
#include "window_bench.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <cstdio>
#include <cstdlib>

// The real view, driven by keys without a display. Aimed at with 100,000 entries: selecting all below 50 ms,
// and no key that touches few entries above 16 ms.

namespace {

struct Editor
{
    explicit Editor(int count)
    {
        document.ReplaceList(GenerateList(count, 1));
        view.resize(900, 700);
    }

    CTexts texts;
    Settings settings;
    CSettingsChanges settingsChanges;
    CYesPrompt prompt;
    CRandom random{1};
    CWin32Doc document{{texts, settings.editor, prompt, [] { return QDate(2004, 5, 6); }, {}}};
    CWin32View view{{document, settings, settingsChanges, texts, prompt}};
    CArranging arranging{view, document, settings.arrange, random};
};

void Key(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
    Settle();
}

void MeasureOpening(CWin32View &view)
{
    Print("open to the first paint",
        Measure(
            1, [] {},
            [&view] {
                view.RefreshAll();
                view.show();
                Settle();
            }));
    QApplication::setActiveWindow(&view);
}

void Run(int count)
{
    Editor editor(count);
    CWin32View &view = editor.view;
    auto *const list = view.findChild<CWordListControl *>();
    std::printf("%d entries\n", count);
    const auto nothing = [] {};
    MeasureOpening(view);
    list->setFocus();
    Print("a page down", Measure(10, nothing, [] { Key(Qt::Key_PageDown); }));
    Print("scroll to the middle",
        Measure(
            3, [&] { list->verticalScrollBar()->setValue(0); },
            [&] {
                list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() / 2);
                Settle();
            }));
    Print("select all",
        Measure(
            3, [&] { view.SelectEntry(0); },
            [&] {
                view.SelectAll();
                Settle();
            }));
    Print("the selected entries", Measure(3, nothing, [&] {
        if (int(view.SelectedEntries().size()) != count) {
            std::exit(1);
        }
    }));
    view.SelectEntry(count / 2);
    Print("toggle a flag", Measure(10, nothing, [] { Key(Qt::Key_Space); }));
    Print("an arrow key", Measure(10, nothing, [] { Key(Qt::Key_Down); }));
    view.SetInsertionPoint(count / 2);
    list->EditCell(count / 2, 0);
    Print("a letter in the new-entry row", Measure(10, nothing, [] { Key(Qt::Key_A); }));
    Print("Enter after the first term", Measure(1, nothing, [] { Key(Qt::Key_Return); }));
    Key(Qt::Key_B);
    Key(Qt::Key_Return);
    Print("Enter that makes the entry", Measure(1, nothing, [] { Key(Qt::Key_Return); }));
    Key(Qt::Key_Escape);
    Print("undo", Measure(1, nothing, [&] {
        editor.document.Undo();
        Settle();
    }));
    Print("sort", Measure(1, nothing, [&] {
        editor.arranging.Sort(0);
        Settle();
    }));
    const int block = std::min(count / 4, 10000);
    view.SelectEntryRange(count / 2, count / 2 + block - 1);
    Settle();
    for (const auto &[name, part] : {std::pair("move 10,000 selected entries one row", MovedPart::Entry),
             {"move one field of them one row", MovedPart::Field}}) {
        Print(name, Measure(10, nothing, [&, part = part] {
            editor.arranging.MoveRows(false, part, false);
            Settle();
        }));
    }
    std::vector<int> scattered;
    for (int entry = 0; entry < 2 * block; entry += 2) {
        scattered.push_back(count / 4 + entry);
    }
    view.SelectEntries(scattered);
    Settle();
    Print("move 10,000 entries between others one row", Measure(10, nothing, [&] {
        editor.arranging.MoveRows(false, MovedPart::Entry, false);
        Settle();
    }));
    std::vector<int> half;
    for (int entry = 0; entry < count; entry += 2) {
        half.push_back(entry);
    }
    Print("select every other entry", Measure(1, nothing, [&] {
        view.SelectEntries(half);
        Settle();
    }));
    Print("delete them", Measure(1, nothing, [&] {
        view.DeleteSelection();
        Settle();
    }));
    std::printf("\n");
}

/// Size 0: terms so long that laying one out takes longer than a key press may; aimed at below 50 ms each.
void RunLongTerms()
{
    Editor editor(0);
    editor.settings.editor.showEditFields = true;
    editor.settingsChanges.Tell(SettingsSection::Editor);
    const QString term = QStringLiteral("ett ord ").repeated(130000);
    editor.document.Change([&term](CWordList &list) {
        for (int i = 0; i < 4; ++i) {
            list.Insert(CWordEntry(term + QString::number(i), term + term, term));
        }
    });
    CWin32View &view = editor.view;
    auto *const list = view.findChild<CWordListControl *>();
    std::printf("4 entries of 1 MB terms\n");
    const auto nothing = [] {};
    MeasureOpening(view);
    list->setFocus();
    view.SelectEntry(0);
    Print("an arrow key", Measure(3, nothing, [] { Key(Qt::Key_Down); }));
    list->EditCell(2, 0);
    Key(Qt::Key_End);
    Print("a letter in a cell", Measure(10, nothing, [] { Key(Qt::Key_A); }));
    Print("Enter in a cell", Measure(1, nothing, [] { Key(Qt::Key_Return); }));
    Print("toggle a flag", Measure(10, nothing, [] { Key(Qt::Key_Space); }));
    view.SelectEntry(2);
    auto *const field = view.findChild<QLineEdit *>(QStringLiteral("field0"));
    field->setFocus();
    Print("a letter in a field", Measure(10, nothing, [] { Key(Qt::Key_A); }));
    Print("Enter in a field", Measure(1, nothing, [] { Key(Qt::Key_Return); }));
    Print("undo", Measure(1, nothing, [&] {
        editor.document.Undo();
        Settle();
    }));
    Print("what the copy for recovery is made of", Measure(1, nothing, [&] {
        if (view.PendingWork().ListWithAll().Count() != 4) {
            std::exit(1);
        }
    }));
    std::printf("\n");
}

}

int main(int argc, char *argv[])
{
    return MeasureSizes(argc, argv, {0, 100000, 1000000}, [](int count) {
        if (count == 0) {
            RunLongTerms();
        } else {
            Run(count);
        }
    });
}
