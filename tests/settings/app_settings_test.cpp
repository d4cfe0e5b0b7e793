// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "support/scripted_prompt.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

QString Section(const char *name)
{
    return CAppSettings::RootPath() + u'\\' + QString::fromLatin1(name);
}

/// Puts every setting to another value inside its bounds than the factory's.
class COtherValues
{
public:
    void Flag(const char *, bool &value, bool factory) { value = !factory; }
    void KeptFlag(const char *, bool &value) { value = !value; }
    void Integer(const char *, int &value, int lower, int upper, int factory)
    {
        const bool accepted = upper == CRegistrySettings::NO_BOUND || lower <= upper;
        value = !accepted ? factory : factory == upper ? factory - 1 : factory + 1;
    }
    template<class Enumeration>
    void Choice(const char *, Enumeration &value, Enumeration last, Enumeration factory)
    {
        value = Enumeration(int(factory) + (factory == last ? -1 : 1));
    }
    void Color(const char *, quint32 &value, quint32 factory) { value = ~factory; }
    void Text(const char *name, QString &value, const char *, const char * = nullptr) { KeptText(name, value); }
    void NumberedText(const char *name, QString &value, int) { KeptText(name, value); }
    void KeptText(const char *name, QString &value) { value = QString::fromLatin1(name) + u", \"å\";\n=\\"_s; }
    void List(const char *, QStringList &value) { value = {u"ñ"_s, u"\u0301"_s}; }
};

}

class AppSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstRun();
    void namesAndFactoryValues();
    void bounds_data();
    void bounds();
    void lists_data();
    void lists();
    void savingAndLoadingReproducesEverything();
    void resettingKeepsTheLanguage();
    void iniFile();
    void iniFileEditedByHand();
    void lastToWriteWins();
    void iniTextIsTheToolkits();
    void iniThatIsNoFile();
    void iniSectionsStay();

private:
    CTexts m_texts;
};

void AppSettingsTest::firstRun()
{
    CMemoryStore store;
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    QVERIFY(settings.isFirstRun);
    for (const char *name : {"misc", "editor", "easykey", "quiz", "quiz\\quizchallenge", "quiz\\fallingword",
             "import", "createTable", "filesearch", "result", "find", "arrange"}) {
        QVERIFY2(store.HasSection(Section(name)), name);
    }
    QVERIFY(!store.Read(Section("misc"), u"autoOpen"_s)); // Nothing is written before the exit.
    QCOMPARE(settings.editor.standardFilename, u"%language2 %date av %author"_s);
    QCOMPARE(settings.createTable.replaceAsterisc, u", "_s);
    settings.Exchange(false);
    CAppSettings next(store, m_texts);
    next.Exchange(true);
    QVERIFY(!next.isFirstRun);
}

void AppSettingsTest::namesAndFactoryValues()
{
    CMemoryStore store;
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    settings.Exchange(false);
    QStringList stored;
    for (const auto &[path, values] : store.Sections().asKeyValueRange()) {
        for (const auto &[name, value] : values.asKeyValueRange()) {
            stored.append(path.mid(CAppSettings::RootPath().size() + 1) + u'\\' + name + u'='
                + QString(value).replace(u'\n', u"\\n"_s));
        }
    }
    stored.sort();
    QFile file(QStringLiteral(ORDELIN_SOURCE_DIR "/tests/settings/factory_values.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList expected = QString::fromUtf8(file.readAll()).trimmed().split(u'\n');
    for (const QString &line : std::as_const(stored)) {
        QVERIFY2(expected.contains(line), qPrintable(line));
    }
    QCOMPARE(stored, expected);
}

void AppSettingsTest::bounds_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("loaded");
    QTest::newRow("below") << "quiz"
                           << "requizNumber"
                           << "0"
                           << "3";
    QTest::newRow("above") << "quiz"
                           << "requizNumber"
                           << "101"
                           << "3";
    QTest::newRow("at the bound") << "quiz"
                                  << "requizNumber"
                                  << "100"
                                  << "100";
    QTest::newRow("never accepted") << "editor"
                                    << "duplilcateCheckBeforeQuizMax"
                                    << "500"
                                    << "1000";
    QTest::newRow("negative bound") << "find"
                                    << "language"
                                    << "-1"
                                    << "-1";
    QTest::newRow("below a negative bound") << "find"
                                            << "language"
                                            << "-2"
                                            << "-1";
    QTest::newRow("probability up to 99") << "quiz"
                                          << "includeFlaggedProbability"
                                          << "100"
                                          << "20";
    QTest::newRow("no bounds") << "quiz"
                               << "numberOfWords"
                               << "-7"
                               << "-7";
    QTest::newRow("no number") << "quiz"
                               << "requizNumber"
                               << "7x"
                               << "3";
    QTest::newRow("blanks around a number") << "quiz"
                                            << "requizNumber"
                                            << " 7 "
                                            << "7";
    QTest::newRow("more than a number can be") << "quiz"
                                               << "requizNumber"
                                               << "99999999999999999999"
                                               << "3";
    QTest::newRow("flag that is no 1") << "misc"
                                       << "autoOpen"
                                       << "-5"
                                       << "1";
    QTest::newRow("flag that is no number") << "misc"
                                            << "autoOpen"
                                            << "no"
                                            << "1";
    QTest::newRow("colour") << "createTable"
                            << "colorText"
                            << "4294967295"
                            << "4294967295";
    QTest::newRow("colour that is none") << "createTable"
                                         << "colorBackground"
                                         << "-1"
                                         << "16777215";
    QTest::newRow("sound with the word contest") << "quiz\\quizchallenge"
                                                 << "rightSoundFile"
                                                 << "x.wav"
                                                 << "x.wav";
}

void AppSettingsTest::bounds()
{
    QFETCH(QString, section);
    QFETCH(QString, name);
    QFETCH(QString, stored);
    QFETCH(QString, loaded);
    CMemoryStore store;
    const QString path = CAppSettings::RootPath() + u'\\' + section;
    store.Write(path, name, stored);
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    settings.Exchange(false);
    QCOMPARE(store.Read(path, name).value_or(QString()), loaded);
}

void AppSettingsTest::lists_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("blanks around items") << " å \n\tß" << QStringList{u"å"_s, u"ß"_s};
    QTest::newRow("empty text") << "" << QStringList{};
    QTest::newRow("final line break") << "a\nb\n" << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("empty item between") << "a\n\nb" << QStringList{u"a"_s, QString(), u"b"_s};
}

void AppSettingsTest::lists()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, items);
    CMemoryStore store;
    store.Write(Section("easykey"), u"keys"_s, stored);
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    QCOMPARE(settings.easykey.keys, items);
}

void AppSettingsTest::savingAndLoadingReproducesEverything()
{
    CMemoryStore store;
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    COtherValues other;
    settings.misc.Visit(other);
    settings.editor.Visit(other);
    settings.easykey.Visit(other);
    settings.quiz.Visit(other);
    settings.quizChallenge.Visit(other);
    settings.fallingWord.Visit(other);
    settings.quizWindows.Visit(other);
    settings.import.Visit(other);
    settings.createTable.Visit(other);
    settings.filesearch.Visit(other);
    settings.result.Visit(other);
    settings.find.Visit(other);
    settings.arrange.Visit(other);
    settings.Exchange(false);
    QVERIFY(store.Read(Section("quiz"), u"windowWidth8"_s) != u"0"_s);
    const auto saved = store.Sections();
    CAppSettings loaded(store, m_texts);
    loaded.Exchange(true);
    loaded.Exchange(false);
    QCOMPARE(store.Sections(), saved);
    QCOMPARE(loaded.easykey.keys, settings.easykey.keys);
}

void AppSettingsTest::resettingKeepsTheLanguage()
{
    CMemoryStore store;
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    settings.misc.languageFile = u"x"_s;
    settings.misc.plugInUse = false;
    settings.misc.fontSize = 30;
    settings.easykey.keys = {u"a"_s};
    CScriptedPrompt prompt;
    prompt.answers = {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes};
    QVERIFY(!settings.ResetToFactory(prompt) && !settings.ResetToFactory(prompt));
    QCOMPARE(settings.misc.fontSize, 30);
    QVERIFY(settings.ResetToFactory(prompt));
    QCOMPARE(settings.misc.languageFile, u"x"_s);
    QVERIFY(!settings.misc.plugInUse);
    QCOMPARE(settings.misc.fontSize, 11);
    QVERIFY(settings.easykey.keys.isEmpty());
}

void AppSettingsTest::iniFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"new folder/Ordelin.ini"_s);
    {
        CIniStore store(path, CAppSettings::RootPath());
        CAppSettings settings(store, m_texts);
        settings.Exchange(true);
        QVERIFY(settings.isFirstRun);
        settings.editor.author = u"Åsa, \"x\"; y=z\\\nœ"_s;
        settings.fallingWord.speed = 99;
        settings.Exchange(false);
    }
    CIniStore store(path, CAppSettings::RootPath());
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    QVERIFY(!settings.isFirstRun);
    QCOMPARE(settings.editor.author, u"Åsa, \"x\"; y=z\\\nœ"_s);
    QCOMPARE(settings.fallingWord.speed, 99);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(
        text.contains("[editor]\n") && text.contains("\nundoSize=10\n") && text.contains("\nlang1first=1\n"));
    QVERIFY(!text.contains("section="));
}

void AppSettingsTest::iniFileEditedByHand()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Ordelin.ini"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("garbage\n[editor]\nauthor=Eva, Bo, x\nundoSize=many, or "
               "few\n[quiz\n=5\nrequizNumber=\n"
               "[find]\nlanguage=1\n\xFF\xFE[misc]\nautoOpen=@Invalid()\nfontSize=@ByteArray(12)\n[import]"
               "\nlang1=\"open\n");
    file.close();
    CIniStore store(path, CAppSettings::RootPath());
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    QCOMPARE(settings.editor.author, u"Eva, Bo, x"_s);
    QCOMPARE(settings.editor.undoSize, 10);
    QCOMPARE(settings.find.language, 1);
    QCOMPARE(settings.quiz.requizNumber, 3);
}

void AppSettingsTest::lastToWriteWins()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Ordelin.ini"_s);
    CIniStore first(path, CAppSettings::RootPath());
    CIniStore second(path, CAppSettings::RootPath());
    CAppSettings one(first, m_texts);
    CAppSettings two(second, m_texts);
    one.Exchange(true);
    two.Exchange(true);
    one.editor.author = u"one"_s;
    two.editor.author = u"two"_s;
    two.Exchange(false);
    one.Exchange(false);
    CIniStore third(path, CAppSettings::RootPath());
    CAppSettings loaded(third, m_texts);
    loaded.Exchange(true);
    QCOMPARE(loaded.editor.author, u"one"_s);
    QCOMPARE(loaded.quiz.requizNumber, 3);
}

void AppSettingsTest::iniTextIsTheToolkits()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Ordelin.ini"_s);
    const QStringList texts = {u""_s, u" a "_s, u"a,b ; c=d"_s,
        u"\"\\\a\b\f\n\r\t\v\x1B"
        "1\x7F"_s,
        u"å\U0001F600\u0301\u2028"_s, u"@"_s, u"@Invalid()"_s, u"@@x"_s, u"@String(x)"_s, u"%1 [x]\\"_s,
        u"\x1 x"_s, QString(QChar(0)) + u"7"_s};
    const QStringList names = {u"plain"_s, u"a b"_s, u"å%€"_s, u"a=b"_s, u"deep/er-_.9"_s, u"[x]"_s};
    {
        QSettings file(path, QSettings::IniFormat);
        for (qsizetype i = 0; i < texts.size(); ++i) {
            file.setValue(u"editor/"_s + names.at(i % names.size()) + QString::number(i), texts.at(i));
            file.setValue(u"top"_s + QString::number(i), texts.at(i));
            file.setValue(u"General/"_s + QString::number(i), texts.at(i));
        }
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const IniValues values = ParseIni(file.readAll());
    QCOMPARE(values.size(), 3 * texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        QCOMPARE(values.value(u"editor/"_s + names.at(i % names.size()) + QString::number(i)), texts.at(i));
        QCOMPARE(values.value(u"top"_s + QString::number(i)), texts.at(i));
        QCOMPARE(values.value(u"General/"_s + QString::number(i)), texts.at(i));
    }
    QCOMPARE(ParseIni(FormatIni(values)), values);
    QFile other(folder.filePath(u"other.ini"_s));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write(FormatIni(values));
    other.close();
    const QSettings again(other.fileName(), QSettings::IniFormat);
    QCOMPARE(again.allKeys().size(), values.size());
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        QVERIFY(again.contains(value.key()));
        if (!value->contains(QChar(0))) {
            QCOMPARE(again.value(value.key()).toString(), *value);
        }
    }
}

void AppSettingsTest::iniThatIsNoFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Ordelin.ini"_s);
    QVERIFY(QDir().mkpath(path + u".lock"_s));
    QCOMPARE(mkfifo(path.toUtf8().constData(), 0666), 0);
    CIniStore store(path, CAppSettings::RootPath());
    CAppSettings settings(store, m_texts);
    settings.Exchange(true);
    QCOMPARE(settings.editor.undoSize, 10);
    settings.Exchange(false);
    QVERIFY(!store.Flush());
    QVERIFY(QFile::remove(path)); // Then there is room for what was not written.
    QVERIFY(store.Flush() && QFileInfo(path).isFile());
}

void AppSettingsTest::iniSectionsStay()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Ordelin.ini"_s);
    const auto has = [&](const char *section) {
        return CIniStore(path, CAppSettings::RootPath()).HasSection(Section(section));
    };
    CIniStore store(path, CAppSettings::RootPath());
    store.CreateSection(Section("empty"));
    store.Write(Section("files"), u"File1"_s, u"x"_s);
    QVERIFY(store.Flush() && has("empty") && has("files"));
    store.Remove(Section("files"), u"File1"_s); // Its last value.
    QVERIFY(store.Flush() && has("files") && !has("file"));
}

QTEST_GUILESS_MAIN(AppSettingsTest)
#include "app_settings_test.moc"
