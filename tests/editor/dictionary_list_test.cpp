// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary_choices.h"
#include "editor/ui/dictionary_list_window.h"
#include "support/dictionary_files.h"
#include "support/test_editor_view.h"
#include "support/widgets.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

/// Two dictionaries, one for each direction, and one whose name tells nothing.
struct Dictionaries
{
    explicit Dictionaries(const QString &entries, const QString &language1, const QString &language2)
        : editor(entries)
    {
        const QList<Article> words = {{"dog", "dog\nhund, *jycke\n"}, {"dogma", "dogma\ntrossats\n"},
            {"hot dog", "hot dog\nvarmkorv\n"}, {"ox", "ox\n"}};
        written = WriteDictionary(folder, u"a-eng-swe"_s, words)
            && WriteDictionary(folder, u"b-swe-eng"_s, {{"hund", "hund\ndog, hound\n"}})
            && WriteDictionary(folder, u"words"_s, words);
        settings.folder = folder.path();
        editor.test.document.Change([&](CWordList &list) {
            list.SetLanguage(0, language1);
            list.SetLanguage(1, language2);
        });
    }
    CWin32Doc &Document() { return editor.test.document; }
    /// What became of a text in a new form, all of it.
    QString Found(CDictionaryListForm &form, const QString &text)
    {
        form.ChooseText(text);
        return QTest::qWaitFor([&form] { return !form.IsLookingUp(); }, 20000)
            ? Joined(form.Entries()) + u" / "_s + form.Summary()
            : u"too slow"_s;
    }

    QTemporaryDir folder;
    bool written = false;
    TestEditor editor;
    DictionarySettings settings;
};

}

class DictionaryListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words()
    {
        Dictionaries run(u"x|y,z|w"_s, u"Engelska"_s, u"Svenska"_s);
        CDictionaryListForm form(run.Document(), run.settings, run.editor.test.texts);
        QVERIFY(run.written && form.Dictionary() == 0 && form.Side() == 0 && !form.CanChooseSide());
        QCOMPARE(form.Dictionaries(),
            QStringList(
                {u"English till svenska (a-eng-swe)"_s, u"svenska till English (b-swe-eng)"_s, u"words"_s}));
        QCOMPARE(run.Found(form, u" \n"_s), u" / Skriv eller klistra in ord att slå upp."_s);
        QVERIFY(!form.CanInsert());
        QCOMPARE(run.Found(form, u"dog [djur]\r\n\nox\ncat\ndog [djur]"_s),
            u"dog [djur]|hund * jycke / Glosor: 1. Utan översättning: ox, cat. "
            "Kommer inte med oförändrat: Termer med asterisk, som skiljer svarsalternativ åt: 1; "
            "Termer som förlorade asterisker eller tomma klamrar: 1."_s);
        form.ChooseMatch(int(HeadwordMatch::Beginning));
        QCOMPARE(run.Found(form, u"dog"_s).section(u" / "_s, 0, 0), u"dog|hund * jycke,dogma|trossats"_s);
        form.ChooseMatch(int(HeadwordMatch::Part));
        QCOMPARE(run.Found(form, u"?*g\nx*x"_s).section(u" / "_s, 0, 0),
            u"dog|hund * jycke,dogma|trossats,hot dog|varmkorv"_s);

        // Choices that come faster than answers: the last one counts, and no other entries are inserted.
        form.ChooseText(u"hund"_s);
        form.ChooseMatch(int(HeadwordMatch::Whole));
        form.ChooseDictionary(1);
        QVERIFY(form.IsLookingUp() && !form.CanInsert());
        QCOMPARE(form.Side(), 1);
        QCOMPARE(run.Found(form, u"hund"_s), u"dog * hound|hund / Glosor: 1."_s);

        run.Document().SetInsertionPoint(1);
        form.Insert(run.editor.view);
        QCOMPARE(run.editor.Entries(), u"x|y,dog * hound|hund,z|w"_s);
        QVERIFY(run.Document().UndoCount() == 2 && run.Document().InsertionPoint() == 2);
        QCOMPARE(run.editor.view.selected, std::vector(1, 1));
        QCOMPARE(run.editor.view.status, u"1 glosor från ordboken infogades."_s);
        run.Document().Undo();
        QCOMPARE(run.editor.Entries(), u"x|y,z|w"_s);
    }

    void languages()
    {
        // An empty list takes those of the dictionary, unless they are its own the other way round.
        Dictionaries empty(u""_s, u"Tyska"_s, u"Franska"_s);
        {
            CDictionaryListForm form(empty.Document(), empty.settings, empty.editor.test.texts);
            QVERIFY(form.TakesLanguages() && !form.CanChooseSide());
            QVERIFY(
                empty.Found(form, u"dog"_s).endsWith(u"Den tomma listan får språken English och svenska."_s));
            const int steps = empty.Document().UndoCount();
            form.Insert(empty.editor.view);
            QCOMPARE(empty.Document().UndoCount(), steps + 1);
            QCOMPARE(empty.Document().List().GetLanguage(0), u"English"_s);
        }
        Dictionaries own(u""_s, u"svenska"_s, u"engelska (brittisk)"_s);
        CDictionaryListForm form(own.Document(), own.settings, own.editor.test.texts);
        QCOMPARE(form.Dictionary(), 1);
        form.ChooseDictionary(0);
        QVERIFY(form.Side() == 1 && !form.TakesLanguages());
        QCOMPARE(form.LanguageOf(1), u"engelska (brittisk)"_s);

        // Where they tell nothing, the user does; the choice for suggestions is kept to.
        Dictionaries other(u"a|b"_s, u"Kapitel 1"_s, u"Svenska"_s);
        CDictionaryChoices choices;
        choices.Choose(u"Svenska"_s, u"Kapitel 1"_s, u"words"_s);
        other.settings.chosen = choices.Stored();
        CDictionaryListForm otherForm(other.Document(), other.settings, other.editor.test.texts);
        QVERIFY(otherForm.Dictionary() == 2 && otherForm.Side() == 0 && otherForm.CanChooseSide());
        other.Found(otherForm, u"dogma"_s);
        otherForm.ChooseSide(1);
        QCOMPARE(Joined(otherForm.Entries()), u"trossats|dogma"_s);
        otherForm.ChooseText({}); // So that it isn't opened yet.
        otherForm.ChooseDictionary(1);
        QCOMPARE(otherForm.Side(), 1); // Its first language is that of the list's second.
        QVERIFY(QFile::remove(other.folder.filePath(u"b-swe-eng.dict"_s)));
        QCOMPARE(other.Found(otherForm, u"hund"_s), u" / Ordboken kan inte läsas."_s);
    }

    void window()
    {
        Dictionaries run(u"x|y"_s, u"Kapitel 1"_s, u"<b>"_s);
        QStringList helped;
        auto owned = std::make_unique<CDictionaryListForm>(run.Document(), run.settings, run.editor.test.texts);
        const CDictionaryListForm &form = *owned;
        CDictionaryListWindow window(
            std::move(owned), run.editor.view, [&](const QString &section) { helped.append(section); },
            nullptr);
        window.show();
        VerifyAccessibleNames(&window);
        auto *const words = Find<QPlainTextEdit>(&window, "words");
        const auto *const insert = Find<QPushButton>(&window, "insert");
        const auto *const entries = Find<QTableView>(&window, "entries");
        QVERIFY(window.focusWidget() == words && !insert->isEnabled());
        QTest::keyClicks(words, u"dogma"_s);
        QTRY_VERIFY_WITH_TIMEOUT(insert->isEnabled(), 20000);
        QCOMPARE(Find<QLabel>(&window, "summary")->text(), u"Glosor: 1."_s);
        Find<QComboBox>(&window, "side")->setCurrentIndex(1);
        QCOMPARE(entries->model()->index(0, 1).data().toString(), u"dogma"_s);
        QCOMPARE(entries->model()->headerData(1, Qt::Horizontal).toString(), u"<b>"_s);
        QTest::keyClick(words, Qt::Key_F1);
        QCOMPARE(helped, QStringList(u"list-dictionary"_s));
        // A line feed is one; the button alone inserts.
        QTest::keyClick(words, Qt::Key_Return);
        QVERIFY(window.isVisible() && form.CanInsert());
        Find<QPushButton>(&window, "insert")->click();
        QVERIFY(!window.isVisible());
        QCOMPARE(run.editor.Entries(), u"trossats|dogma,x|y"_s);
    }
};

QTEST_MAIN(DictionaryListTest)
#include "dictionary_list_test.moc"
