// SPDX-License-Identifier: MIT
#include "support/test_document.h"
#include "tools/text_numbers.h"
#include "tools/ui/table_guide.h"
#include "tools/ui/table_print_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QPdfWriter>
#include <QPicture>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray ContentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int PagesOf(const QByteArray &pdf)
{
    return int(pdf.count("/Type /Page\n"));
}

/// Prints into a file.
class CFilePrinter : public IPrinters
{
public:
    QStringList Names() const override { return names; }
    bool CanPrintBothSides(const QString &printer) const override { return printer == u"Laser"; }
    std::unique_ptr<QPagedPaintDevice> Open(const PrintChoice &choice) override
    {
        choices.append(choice);
        auto device = std::make_unique<QPdfWriter>(file);
        device->setPageLayout(choice.paper);
        return device;
    }
    void Abort(QPagedPaintDevice & /*device*/) override { ++aborted; }

    QStringList names = {u"Laser"_s, u"Bläck"_s};
    QString file;
    QList<PrintChoice> choices;
    int aborted = 0;
};

struct Guide
{
    explicit Guide(const QStringList &entries, std::vector<int> selected = {})
        : test(entries), selection(std::move(selected))
    {
        printers.file = folder.filePath(u"printed.pdf"_s);
    }

    void Open()
    {
        guide =
            std::make_unique<CTableGuide>(TableGuideServices{.document = test.document,
                                              .options = options,
                                              .texts = test.texts,
                                              .prompt = test.prompt,
                                              .chooser = chooser,
                                              .today = [] { return QDate(2004, 5, 6); },
                                              .pageFolder = folder.filePath(u"page"_s),
                                              .openFile =
                                                  [this](const QString &file, std::function<void()> failed) {
                                                      opened.append(file);
                                                      openingFailed = std::move(failed);
                                                  },
                                              .showHelp = [] {}},
                selection, paper, printers);
        guide->show();
    }
    void OpenResult()
    {
        Open();
        Click("next");
        Click("next");
        Click("next");
        QTRY_VERIFY(Part<QPushButton>("save")->isEnabled());
    }
    template<class Part_>
    Part_ *Part(const char *name) const
    {
        return guide->findChild<Part_ *>(QLatin1StringView(name));
    }
    void Click(const char *name) const { Part<QPushButton>(name)->click(); }
    QString Message() const { return Part<QLabel>("message")->text(); }
    QString Text(int number) const { return test.texts.Get(number); }

    QTemporaryDir folder;
    TestDocument test;
    CreateTableSettings options;
    CScriptedChooser chooser;
    CFilePrinter printers;
    TablePaper paper = {.size = 1};
    std::vector<int> selection;
    QStringList opened;
    std::function<void()> openingFailed;
    std::unique_ptr<CTableGuide> guide;
};

QStringList ManyEntries(int count)
{
    QStringList entries;
    for (int i = 0; i < count; ++i) {
        entries.append(QStringLiteral("ord %1|word %1 * same [comment]|note|2").arg(i));
    }
    return entries;
}

}

class TableGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosingColumns();
    void optionsByFormat();
    void pageForTheBrowser();
    void textAndSaving();
    void pdf_data();
    void pdf();
    void printing();
    void closingInTheMiddle();
};

void TableGuideTest::choosingColumns()
{
    Guide run({u"a|b"_s});
    run.test.document.SetListProperties({.language1 = u"<b>A</b>\n2"_s});
    run.Open();
    auto *const chosen = run.Part<QListWidget>("chosenColumns");
    auto *const available = run.Part<QListWidget>("availableColumns");
    QCOMPARE(available->item(1)->text(), u"<b>A</b> 2 (tom)"_s);
    QVERIFY(!run.Part<QRadioButton>("selectedEntries")->isEnabled());
    run.Click("addColumn");
    QCOMPARE(run.options.columns, u"0\n1\n2\n3"_s);
    run.Click("columnUp");
    QVERIFY(run.Part<QPushButton>("columnDown")->isEnabled());
    QCOMPARE(run.options.columns, u"0\n1\n3\n2"_s);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(run.Part<QPushButton>("next")->isEnabled());
        run.Click("removeColumn");
    }
    QCOMPARE(chosen->count() + 10 * available->count(), 70);
    QVERIFY(!run.Part<QPushButton>("next")->isEnabled() && !run.Part<QPushButton>("removeColumn")->isEnabled());
    run.guide->reject();
    QCOMPARE(run.options.columns, QString()); // What was chosen stays.
}

void TableGuideTest::optionsByFormat()
{
    Guide run({u"a|b"_s});
    run.Open();
    run.Click("next");
    auto *const bold = run.Part<QComboBox>("makeBold");
    QCOMPARE(bold->itemText(4), u"Svenska"_s);
    QVERIFY(bold->isEnabled());
    run.Click("next");
    auto *const look = run.Part<QGroupBox>("look");
    QVERIFY(look->isEnabled() && !run.Part<QWidget>("colorSpecial")->isEnabled());
    run.Part<QCheckBox>("specialDoChange")->setChecked(true);
    QVERIFY(run.Part<QWidget>("colorSpecial")->isEnabled());
    run.Part<QRadioButton>("asText")->setChecked(true);
    QVERIFY(!look->isEnabled() && run.Part<QCheckBox>("showTitle")->isEnabled());
    run.Click("back");
    QVERIFY(!bold->isEnabled());
    run.Click("next");
    QCOMPARE(run.guide->focusWidget(), run.Part<QRadioButton>("asText"));
    QVERIFY(!run.options.htmlFormat && run.options.specialDoChange);
}

void TableGuideTest::pageForTheBrowser()
{
    Guide run({u"a|b"_s, u"c|d"_s}, {1});
    run.options.useSelected = 1;
    run.OpenResult();
    const QString page = run.folder.filePath(u"page/ordelinTableTemp.html"_s);
    QTRY_COMPARE(run.opened, QStringList{page});
    QVERIFY(ContentOf(page).contains("<td nowrap>d</td>") && !ContentOf(page).contains("<td nowrap>b</td>"));
    QCOMPARE(run.Message(), run.Text(Text::TablePageOpened));
    run.openingFailed();
    QCOMPARE(run.Message(), run.Text(Text::TablePageNotOpened));
    run.Click("showPage");
    QCOMPARE(run.opened.size(), 2);
    QCOMPARE(run.Message(), run.Text(Text::TablePageOpened));
    const std::function<void()> failed = run.openingFailed;
    run.guide.reset();
    failed(); // The browser may answer later.

    // No place for the page.
    Guide other({u"a|b"_s});
    QFile inTheWay(other.folder.filePath(u"page"_s));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    other.OpenResult();
    QTRY_COMPARE(other.Message(), other.Text(Text::TableNotMade));
    QCOMPARE(other.test.prompt.numbers, QList<int>{Text::CannotSave});
    QVERIFY(other.opened.isEmpty() && !other.Part<QPushButton>("showPage")->isEnabled());
}

void TableGuideTest::textAndSaving()
{
    Guide run({u"a|ж"_s});
    const QString own = run.folder.filePath(u"own.gls"_s);
    QVERIFY(run.test.document.OnSaveDocument(own));
    const QByteArray list = ContentOf(own);
    run.options.htmlFormat = false;
    run.OpenResult();
    QTRY_VERIFY(
        run.Part<QPlainTextEdit>("preview")->toPlainText().startsWith(u"Nr:\tSvenska\tEngelska\n1\ta\tж"_s));
    QVERIFY(run.opened.isEmpty());
    const auto save = [&run](const QString &file, qsizetype filter) {
        run.chooser.paths = {file};
        run.chooser.filter = filter;
        run.Click("save");
        QTRY_VERIFY(run.Part<QPushButton>("save")->isEnabled());
    };
    const QString file = run.folder.filePath(u"t.txt"_s);
    save(file, 0);
    QCOMPARE(run.chooser.asked.last().start, run.folder.filePath(u"own.txt"_s));
    QCOMPARE(run.test.prompt.numbers, QList<int>{Text::SavedWithoutCharacters});
    QVERIFY(run.Message().contains(u"t.txt"));
    save(file, 1);
    QVERIFY(ContentOf(file).startsWith("\xFF\xFEN"));
    save(file, 2);
    QVERIFY(ContentOf(file).contains("<td nowrap>&#1078;</td>"));
    save(own, 0);
    save(run.folder.filePath(u"none/t.txt"_s), 0);
    QCOMPARE(run.test.prompt.numbers,
        (QList<int>{Text::SavedWithoutCharacters, Text::HoldsWholeList, Text::CannotSave}));
    QCOMPARE(ContentOf(own), list);
}

void TableGuideTest::pdf_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("longRow");
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("pages");
    QTest::newRow("no entries") << 0 << 0 << u"0\n1\n2"_s << 1;
    QTest::newRow("one page") << 20 << 0 << u"0\n1\n2"_s << 1;
    QTest::newRow("rows to write in") << 100 << 0 << u"1\n5"_s << 4;
    QTest::newRow("a row that is longer than a page") << 3 << 9000 << u"0\n1\n2"_s << 3;
}

void TableGuideTest::pdf()
{
    QFETCH(const int, entries);
    QFETCH(const int, longRow);
    QFETCH(const QString, columns);
    QFETCH(const int, pages);
    QStringList list = ManyEntries(entries);
    if (longRow > 0) {
        list.append(QStringLiteral("mycket långt ").repeated(longRow / 13) + u"|x|"_s);
    }
    Guide run(list);
    run.options.columns = columns;
    run.options.showTitle = true;
    run.options.title = u"Läxa"_s;
    run.OpenResult();
    const QString file = run.folder.filePath(u"t.pdf"_s);
    run.chooser.paths = {file};
    run.Click("savePdf");
    QTRY_VERIFY(run.Message().contains(u"t.pdf"));
    QCOMPARE(PagesOf(ContentOf(file)), pages);
    QVERIFY(ContentOf(file).contains("/MediaBox [0 0 595"));
}

void TableGuideTest::printing()
{
    Guide run(ManyEntries(120));
    run.options.columns = u"1\n5"_s;
    run.paper.orientation = 1;
    run.OpenResult();
    run.Click("printTable");
    CTablePrintDialog *window = nullptr;
    QTRY_VERIFY((window = run.guide->findChild<CTablePrintDialog *>()) != nullptr);
    const auto part = [&window](
                          const char *name) { return window->findChild<QWidget *>(QLatin1StringView(name)); };
    auto *const from = qobject_cast<QSpinBox *>(part("fromPage"));
    auto *const to = qobject_cast<QSpinBox *>(part("toPage"));
    QVERIFY(to->value() > 5);
    from->setValue(2);
    to->setValue(4);
    QTest::keyClick(window, Qt::Key_PageDown);
    QCOMPARE(window->findChild<QLabel *>(u"pageLabel"_s)->text(), u"Sida 2 av %1"_s.arg(to->maximum()));
    auto *const both = qobject_cast<QCheckBox *>(part("bothSides"));
    QVERIFY(both->isEnabled());
    both->setChecked(true);
    auto *const print = qobject_cast<QPushButton *>(part("print"));
    print->click();
    QVERIFY(!print->isEnabled());
    QTRY_VERIFY(print->isEnabled());
    QCOMPARE(PagesOf(ContentOf(run.printers.file)), 3);
    QCOMPARE(run.printers.choices.size(), 1);
    const PrintChoice &choice = run.printers.choices.first();
    QVERIFY(choice.printer == u"Laser" && choice.bothSides && choice.copies == 1);
    QCOMPARE(choice.paper.orientation(), QPageLayout::Landscape);

    // One that can't be written to.
    run.printers.file = run.folder.filePath(u"none/p.pdf"_s);
    print->click();
    QTRY_COMPARE(run.test.prompt.numbers, QList<int>{Text::PrintFailed});
    run.printers.file = run.folder.filePath(u"p.pdf"_s);
    print->click();
    delete window;
    QCOMPARE(run.printers.aborted, 1);
}

void TableGuideTest::closingInTheMiddle()
{
    Guide run(ManyEntries(3000));
    run.Open();
    for (int i = 0; i < 3; ++i) {
        run.Click("next");
    }
    run.Click("back"); // What is made for the browser is given up.
    run.Click("next");
    QTRY_COMPARE(run.opened.size(), 1);
    const QString file = run.folder.filePath(u"t.pdf"_s);
    run.chooser.paths = {file};
    run.Click("savePdf");
    QTRY_VERIFY(run.Message() != run.Text(Text::TablePageOpened));
    run.guide->reject(); // Gives up the file, not the window.
    QVERIFY(run.guide->isVisible() && run.Part<QPushButton>("savePdf")->isEnabled());
    QCOMPARE(run.Message(), run.Text(Text::TableWorkCancelled));
    run.chooser.paths = {file};
    run.Click("savePdf");
    run.guide.reset();
    QVERIFY(!QFile::exists(file));
    QCOMPARE(QDir(run.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());

    run.options.htmlFormat = false;
    run.Open();
    for (int i = 0; i < 3; ++i) {
        run.Click("next");
    }
    run.guide.reset();
}

QTEST_MAIN(TableGuideTest)
#include "table_guide_test.moc"
