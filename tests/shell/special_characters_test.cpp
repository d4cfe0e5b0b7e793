// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/special_character_model.h"
#include "shell/special_characters.h"

#include <QTest>

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
    void sets();
    void choosing();
    void digits();
    void ownCharacters();
    void cells();
    void docking();
};

void SpecialCharactersTest::sets()
{
    QCOMPARE(CharactersOf(CharacterSet::Latin1), QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
    QCOMPARE(CharactersOf(CharacterSet::Latin2), QStringLiteral("àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"));
    QCOMPARE(CharactersOf(CharacterSet::Greek),
        QStringLiteral(
            "\u037E\u0384\u0385\u0386\u0387\u0388\u0389\u038AΌΎΏΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫάέήίΰαβγδεζηθικλμ"
            "νξοπρςστυφχψωϊϋόύώ"));
    QCOMPARE(CharactersOf(CharacterSet::Cyrillic), QStringLiteral("абвгдеёжзийклмнопрстуфхцчшщъыьэюя"));
    const QString &phonetic = CharactersOf(CharacterSet::Phonetic);
    QCOMPARE(phonetic.size(), 134);
    QVERIFY(phonetic.startsWith(u'\u0251') && phonetic.endsWith(u'\u2198'));
    QCOMPARE(phonetic.count(u'\u026B'), 2);
}

void SpecialCharactersTest::choosing()
{
    Characters latin(CharacterSet::Latin2, {QStringLiteral("x")});
    QCOMPARE(latin.Choose(4), QStringLiteral("1 ä"));
    QCOMPARE(latin.Choose(4, true), QStringLiteral("1 Ä"));
    QCOMPARE(latin.Choose(-1), QStringLiteral("0 "));
    QCOMPARE(latin.Choose(32), QStringLiteral("0 "));
    QCOMPARE(latin.Choose(4, true, true), QStringLiteral("2 Ä"));
    QCOMPARE(latin.settings.keys, QStringList({QStringLiteral("x"), QStringLiteral("Ä")}));

    // A text of several characters, one of them outside the basic plane; an empty one comes from a blank line.
    Characters own(CharacterSet::Own, {QStringLiteral("ß\U00010428"), QString()});
    QCOMPARE(own.Choose(0, true, true), QStringLiteral("1 ß\U00010400"));
    QCOMPARE(own.Choose(1), QStringLiteral("0 "));
    QCOMPARE(own.Choose(2), QStringLiteral("3 "));
    QCOMPARE(own.Choose(3), QStringLiteral("0 "));
    QCOMPARE(own.settings.keys.size(), 2);
}

void SpecialCharactersTest::digits()
{
    Characters run(
        CharacterSet::Greek, QString(QStringLiteral("éèêëàâçîôûœ")).split(QString(), Qt::SkipEmptyParts));
    QCOMPARE(run.characters.DigitText(1, false), QStringLiteral("é"));
    QCOMPARE(run.characters.DigitText(9, true), QStringLiteral("Ô"));
    QCOMPARE(run.characters.DigitText(0, false), QStringLiteral("û"));
    run.settings.keys.resize(3);
    QCOMPARE(run.characters.DigitText(4, false), QString());
    QCOMPARE(run.characters.DigitText(0, false), QString());
}

void SpecialCharactersTest::ownCharacters()
{
    Characters run(CharacterSet::Own, {QStringLiteral("a"), QStringLiteral("b")});
    QVERIFY(!run.characters.Edit(0, QStringLiteral(" \n")));
    QVERIFY(run.characters.Edit(0, QStringLiteral(" a\u0301\n ")));
    QVERIFY(run.characters.Edit(2, QStringLiteral("c")));
    QVERIFY(!run.characters.Edit(4, QStringLiteral("d")));
    QVERIFY(!run.characters.Remove(3));
    QVERIFY(run.characters.Remove(1));
    QCOMPARE(run.settings.keys, QStringList({QStringLiteral("a\u0301"), QStringLiteral("c")}));

    run.settings.subset = int(CharacterSet::Latin1);
    QVERIFY(!run.characters.Edit(0, QStringLiteral("x")));
    QVERIFY(!run.characters.Remove(0));
    QCOMPARE(run.settings.keys.size(), 2);
}

void SpecialCharactersTest::cells()
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
    QCOMPARE(text(0, 1), QStringLiteral("Ctrl+1"));
    QCOMPARE(text(9, 1), QStringLiteral("Ctrl+0"));
    QCOMPARE(text(10, 1), QString());
    QCOMPARE(text(11, 0), QStringLiteral("(...)"));
    QCOMPARE(text(11, 0, Qt::EditRole), QString());
    QVERIFY(model.Remove(0));
    QVERIFY(model.setData(model.index(10, 0), QStringLiteral("x")));
    QCOMPARE(text(10, 0), QStringLiteral("x"));
    QCOMPARE(text(11, 0), QStringLiteral("(...)"));

    run.settings.subset = int(CharacterSet::Phonetic);
    model.SetGridColumns(20);
    QCOMPARE(model.rowCount(), 7);
    QCOMPARE(model.Item(model.index(6, 13)), 133);
    QCOMPARE(model.flags(model.index(6, 14)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.Cell(25), model.index(1, 5));
    QCOMPARE(text(0, 3, Qt::AccessibleTextRole), QStringLiteral("æ, latin small letter ae"));
    QCOMPARE(text(5, 0), QStringLiteral("\u25CC\u0324"));
    QCOMPARE(text(5, 0, Qt::ToolTipRole), QStringLiteral("U+0324 combining diaeresis below"));
}

void SpecialCharactersTest::docking()
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

QTEST_APPLESS_MAIN(SpecialCharactersTest)
#include "special_characters_test.moc"
