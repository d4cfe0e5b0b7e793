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
    void bounds();
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

void AppSettingsTest::bounds()
{
    const struct
    {
        QString section;
        QString name;
        QString stored;
        QString loaded;
    } rows[] = {
        {u"quiz"_s, u"requizNumber"_s, u"0"_s, u"3"_s}, // below
        {u"quiz"_s, u"requizNumber"_s, u"101"_s, u"3"_s}, // above
        {u"quiz"_s, u"requizNumber"_s, u"100"_s, u"100"_s}, // at the bound
        {u"editor"_s, u"duplilcateCheckBeforeQuizMax"_s, u"500"_s, u"1000"_s}, // never accepted
        {u"find"_s, u"language"_s, u"-1"_s, u"-1"_s}, // negative bound
        {u"find"_s, u"language"_s, u"-2"_s, u"-1"_s}, // below a negative bound
        {u"quiz"_s, u"includeFlaggedProbability"_s, u"100"_s, u"20"_s}, // probability up to 99
        {u"quiz"_s, u"numberOfWords"_s, u"-7"_s, u"-7"_s}, // no bounds
        {u"quiz"_s, u"requizNumber"_s, u"7x"_s, u"3"_s}, // no number
        {u"quiz"_s, u"requizNumber"_s, u" 7 "_s, u"7"_s}, // blanks around a number
        {u"quiz"_s, u"requizNumber"_s, u"99999999999999999999"_s, u"3"_s}, // more than a number can be
        {u"misc"_s, u"autoOpen"_s, u"-5"_s, u"1"_s}, // flag that is no 1
        {u"misc"_s, u"autoOpen"_s, u"no"_s, u"1"_s}, // flag that is no number
        {u"createTable"_s, u"colorText"_s, u"4294967295"_s, u"4294967295"_s}, // colour
        {u"createTable"_s, u"colorBackground"_s, u"-1"_s, u"16777215"_s}, // colour that is none
        {u"quiz\\quizchallenge"_s, u"rightSoundFile"_s, u"x.wav"_s, u"x.wav"_s}, // sound with the word contest
    };
    for (const auto &row : rows) {
        CMemoryStore store;
        const QString path = CAppSettings::RootPath() + u'\\' + row.section;
        store.Write(path, row.name, row.stored);
        CAppSettings settings(store, m_texts);
        settings.Exchange(true);
        settings.Exchange(false);
        QCOMPARE(store.Read(path, row.name).value_or(QString()), row.loaded);
    }
}

void AppSettingsTest::lists()
{
    const struct
    {
        QString stored;
        QStringList items;
    } rows[] = {
        {u" å \n\tß"_s, QStringList{u"å"_s, u"ß"_s}}, // blanks around items
        {{}, QStringList{}}, // empty text
        {u"a\nb\n"_s, QStringList{u"a"_s, u"b"_s}}, // final line break
        {u"a\n\nb"_s, QStringList{u"a"_s, QString(), u"b"_s}}, // empty item between
    };
    for (const auto &row : rows) {
        CMemoryStore store;
        store.Write(Section("easykey"), u"keys"_s, row.stored);
        CAppSettings settings(store, m_texts);
        settings.Exchange(true);
        QCOMPARE(settings.easykey.keys, row.items);
    }
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
