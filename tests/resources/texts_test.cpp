// SPDX-License-Identifier: MIT
#include "resources/string_table.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QByteArray FirstLine = QByteArrayLiteral("Ordelin-spr\xC3\xA5kmodul\n");

CStringTable LoadFile(const QString &path)
{
    CStringTable table;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !table.Load(file.readAll())) {
        qWarning("%s is no language module", qPrintable(path));
    }
    return table;
}

/// The placeholders of a text in their order; those filled by position must keep it, the others only occur.
QStringList Placeholders(const QString &text, const QString &pattern)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();) {
        found.append(match.next().captured());
    }
    return found;
}

QChar Mnemonic(const QString &text)
{
    const qsizetype ampersand = text.indexOf(u'&');
    return ampersand < 0 ? QChar() : text.at(ampersand + 1).toLower();
}

}

class TextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modules()
    {
        CStringTable table;
        QVERIFY(table.Load(
            FirstLine + "# comment=1\r\n5=a\\nb\\\\n\\t=x\n7=first\n7=second\n8=\nno number=x\n9\n10=last\\"));
        QCOMPARE(table.Text(5), u"a\nb\\n\t=x"_s);
        QCOMPARE(table.Text(7), u"second"_s);
        QVERIFY(table.Contains(8) && !table.Contains(9) && !table.Contains(1));
        QCOMPARE(table.Text(10), u"last\\"_s);
        QVERIFY(table.Load(FirstLine + "bitmap170=aGVq\n"));
        QCOMPARE(table.Picture(), QByteArray("hej"));
        QVERIFY(!table.Load({}) && !table.Load("7=x\n") && !table.Load(QByteArray(1000, '\0')));
        QVERIFY(table.Load(FirstLine) && table.Numbers().isEmpty());
        QVERIFY(table.Load(FirstLine + "1=" + QByteArray(1000001, '\\')));
        QCOMPARE(table.Text(1).size(), 500001);
        QVERIFY(table.Load(FirstLine + "99999999999=x\n3=\xFF\xFE\n"));
        QCOMPARE(table.Numbers(), QList<int>{3});
        QVERIFY(table.Load(FirstLine + "bitmap170=a*b\nbitmap171=aGVq\n") && table.Picture().isEmpty());
        QVERIFY(table.Load(FirstLine + "bitmap170=" + QByteArray(100000, 'A')));
        QVERIFY(table.Picture().isEmpty());
    }

    void filling()
    {
        QCOMPARE(
            FillText(u"%s av %s (%s%%)"_s, {u"%s"_s, u"%%"_s, u"3"_s}, FilledFor::Screen), u"%s av %% (3%)"_s);
        QCOMPARE(FillText(u"border=%d%s%"_s, {u"1"_s}, FilledFor::Storage), u"border=1%"_s);
        QCOMPARE(FillText(u"%word %s"_s, {u"x"_s}, FilledFor::Screen), u"%word x"_s);
        const QList<Placeholder> both = {{u"%1"_s, u"<%2>"_s}, {u"%2"_s, u"b"_s}};
        QCOMPARE(FillPlaceholders(u"%%1 %2%"_s, both, FilledFor::Screen), u"%<%2> b%"_s);
        QCOMPARE(FillInOrder(u"%%1 %2%"_s, both, FilledFor::Screen), u"%<b> b%"_s);
    }

    void directions()
    {
        const CTexts texts;
        // A file name or a language may not turn the sentence round; what is stored has no marks of ours.
        const QString turned = u"a\u202Eb"_s;
        QCOMPARE(texts.Fill(61014, {turned}), u"Det gick inte att spara filen \u2068a\u202Eb\u2069."_s);
        QCOMPARE(texts.Prompt(61014, {turned}).text, texts.Fill(61014, {turned}));
        QCOMPARE(texts.Fill(203013, {turned}, FilledFor::Storage), u"a\u202Eb – resultat"_s);
        // In a sentence from right to left the other letters run the other way; numbers never need a mark.
        QCOMPARE(FillText(u"א %s %s"_s, {u"x"_s, u"12"_s}, FilledFor::Screen), u"א \u2068x\u2069 12"_s);
    }

    void ownTextsBehindAModule()
    {
        CTexts texts;
        QVERIFY(!texts.LoadModule("nonsense"));
        QCOMPARE(texts.Get(62800), u"Avbryt"_s);
        QVERIFY(texts.LoadModule(FirstLine + "62800=Cancel\n62801= \n63510=" + QByteArray(9999, 'x')));
        QCOMPARE(texts.Get(63510), u"OK"_s);
        QCOMPARE(texts.Get(62800), u"Cancel"_s);
        QCOMPARE(texts.Get(62801), u"Stäng"_s);
        QCOMPARE(texts.Get(-1), QString());
    }

    void shippedModulesAreComplete()
    {
        const QString byPosition = u"%[sd%](?![a-z])"_s;
        const QString byName = u"%[1-9n](?![a-z])|%[a-z]{2,}[0-9]?|\\$[a-z]+"_s;
        const QDir source(QStringLiteral(ORDELIN_SOURCE_DIR));
        const CStringTable own = LoadFile(source.filePath(u"src/resources/swedish.ordmod"_s));
        QList<int> numbers = own.Numbers();
        std::ranges::sort(numbers);
        QVERIFY(numbers.size() > 200);
        const QDir modules(source.filePath(u"modules"_s));
        const QStringList names = modules.entryList({u"*.ordmod"_s});
        QVERIFY(!names.isEmpty());
        for (const QString &name : names) {
            const CStringTable module = LoadFile(modules.filePath(name));
            QList<int> translated = module.Numbers();
            std::ranges::sort(translated);
            QCOMPARE(translated, numbers);
            for (const int number : std::as_const(numbers)) {
                const QString a = own.Text(number);
                const QString b = module.Text(number);
                const QString what = u"%1 %2: %3"_s.arg(name).arg(number).arg(b);
                QVERIFY2(Placeholders(a, byPosition) == Placeholders(b, byPosition), qPrintable(what));
                QStringList namesInA = Placeholders(a, byName);
                QStringList namesInB = Placeholders(b, byName);
                namesInA.sort();
                namesInB.sort();
                QVERIFY2(namesInA == namesInB, qPrintable(what));
                QVERIFY2(a.count(u'\n') == b.count(u'\n') && a.count(u'|') == b.count(u'|'), qPrintable(what));
                QVERIFY2(number == 62616 || a.count(u'&') == b.count(u'&'), qPrintable(what));
                QVERIFY2(a.isEmpty() == b.isEmpty(), qPrintable(what));
            }
        }
    }

    void mnemonicsAreUnique()
    {
        QList<QList<int>> windows = {{63070, 63071, 62800, 63073, 63074, 63075, 202005, 70050},
            {63070, 63071, 62800, 63073, 63074, 63075, 208001, 70050},
            {63070, 63071, 62800, 63073, 63074, 63075, 208002, 70050},
            {63070, 63101, 62800, 63073, 63074, 63075, 202005},
            {202005, 203005, 203006, 203007, 203008, 203009, 203010, 203037, 203039, 203040, 63510, 62800},
            {208002, 203005, 203006, 203007, 203008, 203009, 203010, 203037, 203039, 203040, 63510, 62800},
            {63070, 214001, 214002, 62800, 63073, 70050}, {207001, 207002, 207003, 63510, 62800},
            {241001, 241002, 241003, 241004, 241005, 241006, 241008, 62800},
            {63070, 63071, 62800, 63073, 63074, 241024}, {63070, 62800, 63073, 63074, 242001, 242002},
            {63070, 62800, 63073, 63074, 242001, 242003},
            {205003, 205004, 205005, 205006, 205007, 205008, 205010, 205011},
            {205014, 205016, 205019, 205022, 205024},
            {205026, 205027, 205028, 205029, 205030, 205031, 205032, 205033, 205034, 205035, 205036, 205037,
                205038, 205043, 205044},
            {209001, 209003, 209004, 209005, 209009, 209010},
            {210001, 210002, 210003, 210004, 210005, 210006, 210007, 210008, 210009, 210010, 210012, 210013,
                62800},
            {206001, 206002, 206003, 206004, 206005, 62801},
            {221001, 221003, 221004, 221005, 221006, 221009, 221010, 221011, 221012},
            {222002, 222003, 222004, 222005, 222007, 222008, 222009, 222010, 222012, 222014},
            {223001, 223002, 223003, 223004, 223005}, {224001, 224002, 224003},
            {228001, 228002, 228003, 228004, 228005}, {226001, 226002, 226003, 226004}, {227001, 70181},
            {231006, 231007, 232002, 232003, 232004, 232005, 232006, 232007, 232008, 232009},
            {231006, 231007, 232020, 232021, 232022, 232023},
            {231006, 231007, 232031, 232032, 232033, 232034, 232036, 232037, 232038, 232039, 232040},
            {231006, 231007, 232050, 232051, 232052, 232053, 232054, 232056},
            {233001, 233002, 233003, 233004, 233005, 233006, 233007, 233011},
            {234002, 234003, 234004, 234005, 234006, 234007, 234008, 234009, 234010, 234011, 234013},
            {235001, 235002, 235003, 235004, 235008, 235009, 236000, 236001, 236002, 236004, 236005, 236006,
                236007},
            {236000, 236001, 236002, 236004, 236005, 236006, 236007, 237001, 237002, 237003, 237004, 237005,
                237006, 237007, 237008, 237009, 237013},
            {249001, 249003, 249005, 249007, 249008, 249009, 249010, 249011, 249012, 249013, 249014, 249023,
                62800},
            {250004, 250005, 250006, 250007, 250008, 250010, 250012, 62800},
            {251001, 251003, 251004, 251006, 249013, 251015, 62800}};
        QList<int> titles;
        const auto captions = [](const CommandMenu &menu) {
            QList<int> numbers;
            for (const int id : menu.commands) {
                numbers.append(IsSubmenu(id) ? id : 100000 + id);
            }
            return numbers;
        };
        for (const CommandMenu &menu : CommandMenus()) {
            titles.append(menu.title);
            windows.append(captions(menu));
        }
        for (const CommandMenu &menu : CommandSubmenus()) {
            windows.append(captions(menu));
        }
        windows.append(titles);
        const QDir source(QStringLiteral(ORDELIN_SOURCE_DIR));
        for (const char *path : {"src/resources/swedish.ordmod", "modules/english.ordmod"}) {
            const CStringTable table = LoadFile(source.filePath(QLatin1StringView(path)));
            for (const QList<int> &window : std::as_const(windows)) {
                QString used;
                for (const int number : window) {
                    const QChar mnemonic = Mnemonic(table.Text(number));
                    if (!mnemonic.isNull()) {
                        QVERIFY2(!used.contains(mnemonic), qPrintable(table.Text(number)));
                        used += mnemonic;
                    }
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(TextsTest)
#include "texts_test.moc"
