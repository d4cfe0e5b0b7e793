// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/special_character_model.h"
#include "shell/special_characters.h"
#include "support/test.h"

namespace {

struct Characters
{
    CTexts texts;
    EasyKeySettings settings;
    CSpecialCharacters characters{settings, texts};

    explicit Characters(CharacterSet set, const QStringList &own = {})
    {
        settings.subset = int(set);
        settings.keys = own;
    }
    /// What choosing a row does, as "action text".
    QString Choose(int row, bool shift = false, bool ctrl = false)
    {
        const CharacterChoice choice = characters.Choose(row, shift, ctrl);
        return QString::number(int(choice.action)) + u' ' + choice.text;
    }
};

}

class SpecialCharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosing()
    {
        Characters latin(CharacterSet::Latin2, {u"x"_s});
        QCOMPARE(latin.Choose(4), u"1 ä"_s);
        QCOMPARE(latin.Choose(4, true), u"1 Ä"_s);
        QCOMPARE(latin.Choose(-1), u"0 "_s);
        QCOMPARE(latin.Choose(32), u"0 "_s);
        QCOMPARE(latin.Choose(4, true, true), u"2 Ä"_s);
        QCOMPARE(latin.settings.keys, QStringList({u"x"_s, u"Ä"_s}));

        // A text of several characters, one of them outside the basic plane; an empty one comes from a blank
        // line.
        Characters own(CharacterSet::Own, {u"ß\U00010428"_s, QString()});
        QCOMPARE(own.Choose(0, true, true), u"1 ß\U00010400"_s);
        QCOMPARE(own.Choose(1), u"0 "_s);
        QCOMPARE(own.Choose(2), u"3 "_s);
        QCOMPARE(own.Choose(3), u"0 "_s);
        QCOMPARE(own.settings.keys.size(), 2);
    }

    void digits()
    {
        Characters run(CharacterSet::Greek, u"éèêëàâçîôûœ"_s.split(QString(), Qt::SkipEmptyParts));
        QCOMPARE(run.characters.DigitText(1, false), u"é"_s);
        QCOMPARE(run.characters.DigitText(9, true), u"Ô"_s);
        QCOMPARE(run.characters.DigitText(0, false), u"û"_s);
        run.settings.keys.resize(3);
        QCOMPARE(run.characters.DigitText(4, false), QString());
        QCOMPARE(run.characters.DigitText(0, false), QString());
    }

    void ownCharacters()
    {
        Characters run(CharacterSet::Own, {u"a"_s, u"b"_s});
        QVERIFY(!run.characters.Edit(0, u" \n"_s) && run.characters.Edit(0, u" a\u0301\n "_s));
        QVERIFY(run.characters.Edit(2, u"c"_s) && !run.characters.Edit(4, u"d"_s));
        QVERIFY(!run.characters.Remove(3) && run.characters.Remove(1));
        QCOMPARE(run.settings.keys, QStringList({u"a\u0301"_s, u"c"_s}));

        run.settings.subset = int(CharacterSet::Latin1);
        QVERIFY(!run.characters.Edit(0, u"x"_s) && !run.characters.Remove(0));
        QCOMPARE(run.settings.keys.size(), 2);
    }

    void cells()
    {
        Characters run(CharacterSet::Own);
        for (int i = 0; i < 11; ++i) {
            run.settings.keys.append(QString(QChar(u'a' + i)));
        }
        CSpecialCharacterModel model(run.characters, run.texts);
        const auto text = [&](int row, int column, int role = Qt::DisplayRole) {
            return model.index(row, column).data(role).toString();
        };
        QCOMPARE(model.rowCount(), 12);
        QCOMPARE(text(0, 1), u"Ctrl+1"_s);
        QCOMPARE(text(9, 1), u"Ctrl+0"_s);
        QCOMPARE(text(10, 1), QString());
        QCOMPARE(text(11, 0), u"(...)"_s);
        QCOMPARE(text(11, 0, Qt::EditRole), QString());
        QVERIFY(model.Remove(0) && model.setData(model.index(10, 0), u"x"_s));
        QCOMPARE(text(10, 0), u"x"_s);
        QCOMPARE(text(11, 0), u"(...)"_s);

        run.settings.subset = int(CharacterSet::Phonetic);
        model.SetGridColumns(20);
        QCOMPARE(model.rowCount(), 7);
        QCOMPARE(model.Item(model.index(6, 13)), 133);
        QCOMPARE(model.flags(model.index(6, 14)), Qt::ItemFlags(Qt::NoItemFlags));
        QCOMPARE(model.Cell(25), model.index(1, 5));
        QCOMPARE(text(0, 3, Qt::AccessibleTextRole), u"æ, latin small letter ae"_s);
        QCOMPARE(text(5, 0), u"\u25CC\u0324"_s);
        QCOMPARE(text(5, 0, Qt::ToolTipRole), u"U+0324 combining diaeresis below"_s);
    }

    void docking()
    {
        const QRect workArea(100, 0, 1000, 700);
        const QRect frame(400, 50, 500, 400);
        QVERIFY(DockedRect(0, frame, 150, workArea).isNull());
        QCOMPARE(DockedRect(1, frame, 150, workArea), QRect(250, 50, 150, 400));
        QCOMPARE(DockedRect(2, frame, 150, workArea), QRect(900, 50, 150, 400));
        // No room beside the frame, and the frame higher than the work area.
        QCOMPARE(DockedRect(1, QRect(120, -20, 500, 900), 150, workArea), QRect(100, 0, 150, 700));
        QCOMPARE(DockedRect(2, QRect(600, 500, 450, 400), 150, workArea), QRect(950, 300, 150, 400));
        EasyKeySettings stored;
        QVERIFY(StoredRect(stored).isEmpty());
        stored.left = -2147483647;
        stored.right = stored.bottom = 2147483647;
        QCOMPARE(FittedRect(StoredRect(stored), workArea), workArea);
        QCOMPARE(FittedRect(QRect(5000, -100, 3000, 200), workArea), QRect(100, 0, 1000, 200));
    }
};

QTEST_APPLESS_MAIN(SpecialCharactersTest)
#include "special_characters_test.moc"
