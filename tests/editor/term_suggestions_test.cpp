// SPDX-License-Identifier: MIT
#include "editor/ui/term_suggestions.h"

#include "dictionaries/dictionary_choices.h"
#include "editor/ui/suggestion_list.h"
#include "support/dictionary_files.h"
#include "support/test_view.h"

using namespace Qt::StringLiterals;

namespace {

/// The view with a list from Swedish to English, and a dictionary for each direction.
struct SuggestingView : View
{
    QTemporaryDir folder;
    bool written =
        WriteDictionary(folder, u"swe-eng"_s, {{"hund", "hund /x/\ndog, hound\n"}, {"katt", "katt\ncat\n"}})
        && WriteDictionary(folder, u"eng-swe"_s, {{"dog", "dog\nhund\n"}});
    CTermSuggestions suggestions{view, test.document, test.allSettings.dictionaries, test.texts};
    CSuggestionList *list = view.findChild<CSuggestionList *>();

    SuggestingView() : View(u"a=b,x=y"_s)
    {
        Flip(&EditorSettings::showNotes); // So that Enter behind the second term makes the entry.
        test.allSettings.dictionaries.folder = folder.path();
        test.document.Change([](CWordList &words) {
            words.SetProperties({.language1 = u"Svenska"_s, .language2 = u"Engelska"_s});
        });
    }
    void Key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    /// Types the first term of a new entry and confirms it.
    void TypeFirst(const char *term)
    {
        view.SetInsertionPoint(2);
        List()->EditCell(2, 0);
        QTest::keyClicks(Editor(), QString::fromUtf8(term));
        Key(Qt::Key_Return);
    }
    QStringList Shown() const
    {
        QStringList shown;
        for (int row = 0; row < list->count() && !list->isHidden(); ++row) {
            shown.append(list->item(row)->text());
        }
        return shown;
    }
};

}

class TermSuggestionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lastQuestionIsAnswered()
    {
        SuggestingView run;
        DictionarySettings &settings = run.test.allSettings.dictionaries;
        CSuggestions suggestions(settings);
        QSignalSpy found(&suggestions, &CSuggestions::Found);
        const auto ask = [&](const QString &term) { suggestions.Ask(term, u"Svenska"_s, u"Engelska"_s); };
        for (const QString &term : {u"hund"_s, u"nothing"_s, u"[tom]"_s, u"hund"_s, u"katt [djur]"_s}) {
            ask(term);
        }
        QVERIFY(found.wait(10000));
        QCOMPARE(found.takeFirst().at(0).toStringList(), QStringList(u"cat"_s));

        // Another dictionary than the one that the languages name, none, and not at all.
        suggestions.Ask(u"dog"_s, u"Kapitel 1"_s, u"Kapitel 2"_s);
        CDictionaryChoices choices;
        choices.Choose(u"Kapitel 1"_s, u"kapitel 2 "_s, u"eng-swe"_s);
        settings.chosen = choices.Stored();
        suggestions.Ask(u"dog"_s, u"Kapitel 1"_s, u"Kapitel 2"_s);
        QVERIFY(found.wait(10000));
        QCOMPARE(found.takeFirst().at(0).toStringList(), QStringList(u"hund"_s));
        choices.Choose(u"svenska"_s, u"engelska"_s, QString());
        settings.chosen = choices.Stored();
        QCOMPARE(CDictionaryChoices({u"svenska\tengelska"_s}).Chosen(u"Svenska"_s, u"Engelska"_s), QString());
        ask(u"hund"_s);
        settings.chosen.clear();
        settings.suggest = false;
        ask(u"hund"_s);
        settings.suggest = true;
        ask(u"katt"_s);
        QVERIFY(found.wait(10000));
        QCOMPARE(found.takeFirst().at(0).toStringList(), QStringList(u"cat"_s));
        QVERIFY(found.isEmpty());
    }

    void takenByDownAndEnter()
    {
        SuggestingView run;
        run.TypeFirst("hund");
        QTRY_COMPARE(run.Shown(), QStringList({u"dog"_s, u"hound"_s}));
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) {
            run.Key(key);
        }
        QVERIFY(run.Shown().isEmpty());
        QCOMPARE(run.Editor()->text(), u"hound"_s);
        run.Key(Qt::Key_Return);
        QCOMPARE(run.Entry(2), u"hund|hound"_s);
    }

    void neverInTheWay()
    {
        SuggestingView run;
        run.TypeFirst("hund");
        QTRY_COMPARE(run.Shown().size(), 2);
        run.Key(Qt::Key_D);
        QVERIFY(run.Shown().isEmpty());
        QCOMPARE(run.Editor()->text(), u"d"_s);
        run.Key(Qt::Key_Return);
        QCOMPARE(run.Entry(2), u"hund|d"_s);
        // Found too late.
        run.TypeFirst("katt");
        run.Key(Qt::Key_C);
        QTest::qWait(100);
        QVERIFY(run.Shown().isEmpty());
        run.list->Offer({u"late"_s});
        QVERIFY(run.Shown().isEmpty());
        // Escape closes the suggestions alone.
        QTest::keyClick(run.Editor(), Qt::Key_Backspace);
        run.list->Offer({u"cat"_s});
        run.Key(Qt::Key_Escape);
        QVERIFY(run.Shown().isEmpty() && run.Editor() != nullptr);
        // Enter without a choice is Enter.
        run.list->Await(*run.Editor());
        run.list->Offer({u"cat"_s});
        run.Key(Qt::Key_Return);
        QVERIFY(run.Shown().isEmpty());
        QCOMPARE(run.test.document.List().Count(), 3);
    }

    void inEveryLine()
    {
        SuggestingView run;
        // The first term, when the second was typed before it, by the mouse.
        run.view.SetInsertionPoint(2);
        run.List()->EditCell(2, 1);
        QTest::keyClicks(run.Editor(), u"dog"_s);
        run.Key(Qt::Key_Return);
        QTRY_COMPARE(run.Shown(), QStringList(u"hund"_s));
        QTest::mouseClick(
            run.list->viewport(), Qt::LeftButton, {}, run.list->visualItemRect(run.list->item(0)).center());
        QCOMPARE(run.Editor()->text(), u"hund"_s);
        run.Key(Qt::Key_Return);
        QCOMPARE(run.Entry(2), u"hund|dog"_s);
        // The fields, in the other direction.
        run.Flip(&EditorSettings::showEditFields);
        run.view.ClearFields();
        run.Field(1)->setFocus();
        QTest::keyClicks(run.Field(1), u"dog"_s);
        run.Field(0)->setFocus();
        QTRY_COMPARE(run.Shown(), QStringList(u"hund"_s));
        const QRect line(run.Field(0)->mapTo(&run.view, QPoint()), run.Field(0)->size());
        QVERIFY(!run.list->geometry().intersects(line) && run.view.rect().contains(run.list->geometry()));
        run.Field(1)->setFocus();
        QVERIFY(run.Shown().isEmpty());
        run.Field(0)->setFocus();
        QTRY_COMPARE(run.Shown(), QStringList(u"hund"_s));
        run.Key(Qt::Key_Down);
        run.Key(Qt::Key_Enter);
        QCOMPARE(run.Field(0)->text(), u"hund"_s);
    }
};

QTEST_MAIN(TermSuggestionsTest)
#include "term_suggestions_test.moc"
