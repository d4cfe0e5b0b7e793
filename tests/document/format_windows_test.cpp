// SPDX-License-Identifier: MIT
#include "document/ui/export_dialog.h"
#include "document/ui/format_dialogs.h"
#include "document/ui/import_preview_dialog.h"
#include "model/word_list.h"
#include "platform/input_guard.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"
#include "support/lists.h"
#include "support/widgets.h"

#include <QHeaderView>
#include <QMenu>
#include <QTimer>

namespace {

/// The texts of a row of a table.
QString Row(const QTableView *table, int row)
{
    QStringList cells;
    for (int column = 0; column < table->model()->columnCount(); ++column) {
        cells.append(table->model()->index(row, column).data().toString());
    }
    return cells.join(u'|');
}

}

class FormatWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void preview()
    {
        const CTexts texts;
        CImportPreview preview;
        preview.OpenText(u"Svenska\tEngelska\tTags\nhund; vovve\tdog\t<b>\n\t\tx\n"_s);
        CImportPreviewDialog dialog(preview, texts, nullptr);
        dialog.show();
        VerifyAccessibleNames(&dialog);
        auto *const rows = Find<QTableView>(&dialog, "rows");
        const auto *const entries = Find<QTableView>(&dialog, "entries");
        auto *const kind = Find<QComboBox>(&dialog, "kind");
        const auto *const import = Find<QPushButton>(&dialog, "import");
        QCOMPARE(Row(rows, 0), u"hund; vovve|dog|<b>"_s);
        QCOMPARE(Row(entries, 0), u"hund * vovve|dog"_s);
        QCOMPARE(rows->model()->headerData(2, Qt::Horizontal), u"Kolumn 3: Tags\nUtelämnas"_s);
        QVERIFY(rows->model()->index(1, 0).data(CImportModel::LeftOutRole).toBool());
        QVERIFY(dialog.focusWidget() == rows && import->isEnabled());
        QVERIFY(!Find<QComboBox>(&dialog, "encoding")->isEnabled()); // A text that is no file.

        // The choice of a kind follows the table's current column, which stays.
        QTest::keyClick(rows, Qt::Key_Right);
        QTest::keyClick(rows, Qt::Key_Right);
        QCOMPARE(Find<QLabel>(&dialog, "kindLabel")->text(), u"K&olumn 3 är:"_s);
        QCOMPARE(kind->currentIndex(), int(TextColumn::LeftOut));
        kind->setCurrentIndex(int(TextColumn::Note));
        QCOMPARE(Row(entries, 0), u"hund * vovve|dog|<b>"_s);
        QCOMPARE(rows->currentIndex().column(), 2);
        Q_EMIT rows->horizontalHeader()->sectionClicked(0);
        auto *const menu = dialog.findChild<QMenu *>();
        QVERIFY(menu->actions().at(int(TextColumn::Term1))->isChecked());
        menu->actions().at(int(TextColumn::LeftOut))->trigger();
        menu->close();
        QCOMPARE(kind->currentIndex(), int(TextColumn::LeftOut));
        QCOMPARE(Row(entries, 0), u"|dog|<b>"_s);

        // With another separator there are other columns, and perhaps none with terms.
        Find<QCheckBox>(&dialog, "semicolons")->click();
        Find<QCheckBox>(&dialog, "heading")->click();
        QCOMPARE(rows->model()->rowCount(), 3);
        Find<QComboBox>(&dialog, "separator")->setCurrentIndex(3);
        QCOMPARE(rows->model()->columnCount(), 1);
        QVERIFY(dialog.findChild<CSpokenText *>()->accessibleName().startsWith(
            u"Lodstreck. Kolumner: Språk 1. Rader: 3."_s));
        QCOMPARE(Find<QLabel>(&dialog, "kindLabel")->text(), u"K&olumn 1 är:"_s);
        kind->setCurrentIndex(int(TextColumn::LeftOut));
        QVERIFY(!import->isEnabled());
        QVERIFY(Find<QLabel>(&dialog, "summary")->text().endsWith(u"Välj vilken kolumn som har termer."_s));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(dialog.isVisible());

        CImportPreview empty;
        empty.OpenText(u"Svenska\tEngelska\n"_s);
        CImportPreviewDialog emptyDialog(empty, texts, nullptr);
        QVERIFY(!Find<QPushButton>(&emptyDialog, "import")->isEnabled());
        QCOMPARE(Find<QLabel>(&emptyDialog, "summary")->text(),
            u"Rader: 0. Glosor: 0. Det finns inga rader att importera."_s);
    }

    void exporting()
    {
        const CTexts texts;
        CWordList list = MakeList("a|b|note,в");
        list.SetProperties({.language1 = u"Svenska"_s, .language2 = u"<b>"_s});
        CExportForm separated(list, FormatOf(FormatId::SeparatedText), u"x.tsv"_s, texts);
        CExportDialog dialog(separated, nullptr);
        dialog.show();
        VerifyAccessibleNames(&dialog);
        const auto *const losses = Find<QLabel>(&dialog, "losses");
        QCOMPARE(losses->text(), u"Separerad text rymmer allt i listan."_s);
        auto *const encoding = Find<QComboBox>(&dialog, "encoding");
        encoding->setCurrentIndex(int(TextEncoding::Ansi));
        QVERIFY(losses->text().endsWith(u"får inte med:\nTexter med tecken som kodningen saknar: 1"_s));
        QVERIFY(!Find<QCheckBox>(&dialog, "mark")->isEnabled());
        Find<QCheckBox>(&dialog, "heading")->click();
        QVERIFY(losses->text().contains(u"Namn på språk: 2"_s));
        QCOMPARE(separated.Options().separated->separator, u'\t');
        Find<QPushButton>(&dialog, "save")->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));

        // What takes a while is counted beside the window, which can't be confirmed meanwhile.
        CWordList longList;
        for (int i = 0; i < 60'000; ++i) {
            longList.Insert(CWordEntry(u"a"_s, u"b"_s, {}, true));
        }
        CExportForm longForm(longList, FormatOf(FormatId::Kvtml), u"x.kvtml"_s, texts);
        CExportDialog longDialog(longForm, nullptr);
        const auto *const save = Find<QPushButton>(&longDialog, "save");
        const auto *const longLosses = Find<QLabel>(&longDialog, "losses");
        QVERIFY(!save->isEnabled() && longLosses->text().startsWith(u"Räknar"_s));
        Find<QComboBox>(&longDialog, "alternatives")->setCurrentIndex(1);
        QTRY_VERIFY_WITH_TIMEOUT(save->isEnabled(), 20000);
        QVERIFY2(longLosses->text().endsWith(u"Flaggor: 60,000"_s), qPrintable(longLosses->text()));

        CExportForm plain(list, FormatOf(FormatId::PlainText), u"x.txt"_s, texts);
        CExportDialog plainDialog(plain, nullptr);
        const auto *const terms = Find<QComboBox>(&plainDialog, "terms");
        QVERIFY(terms->itemText(2).contains(u"<b>"_s));
        QVERIFY(Find<QComboBox>(&plainDialog, "separator") == nullptr);
    }

    void hastyEnter()
    {
        const CTexts texts;
        std::chrono::milliseconds now{0};
        CFormatDialogs dialogs(
            texts, [](const QString &) {}, [&now] { return now; });
        const CWordList list = MakeList("a|b|note");
        CExportForm form(list, FormatOf(FormatId::PlainText), u"x.txt"_s, texts);
        bool wasKept = false;
        QTimer::singleShot(0, [&] {
            auto *const dialog = FindWindow<CExportDialog>();
            QVERIFY(QTest::qWaitForWindowExposed(dialog));
            QTest::keyClick(dialog, Qt::Key_Return);
            wasKept = dialog->isVisible();
            now += CInputGuard::Pause;
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QVERIFY(dialogs.ChooseExport(form));
        QVERIFY(wasKept);
    }
};

QTEST_MAIN(FormatWindowsTest)
#include "format_windows_test.moc"
