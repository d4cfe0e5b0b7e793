// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "settings/ini_store.h"
#include "support/files.h"
#include "support/scripted_prompt.h"

#include <QSettings>

#include <sys/stat.h>

namespace {

QString Section(const char *name)
{
    return CAppSettings::RootPath() + u'\\' + QString::fromLatin1(name);
}

/// The settings of a program that has just started.
struct InMemory
{
    CTexts texts;
    CAppSettings settings;

    explicit InMemory(CMemoryStore &store) : settings(store, texts) { settings.Exchange(true); }
};

/// With a file for settings.
struct WithFile
{
    CTexts texts;
    CIniStore store;
    CAppSettings settings;

    explicit WithFile(const QString &path) : store(path, CAppSettings::RootPath()), settings(store, texts)
    {
        settings.Exchange(true);
    }
};

}

class AppSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstRun()
    {
        CMemoryStore store;
        InMemory first(store);
        QVERIFY(first.settings.isFirstRun);
        // Nothing is written before the exit.
        QVERIFY(store.HasSection(Section("quiz\\fallingword")) && !store.Read(Section("misc"), u"autoOpen"_s));
        first.settings.Exchange(false);
        QVERIFY(!InMemory(store).settings.isFirstRun);
    }

    void namesAndFactoryValues()
    {
        CMemoryStore store;
        InMemory run(store);
        run.settings.Exchange(false);
        QStringList stored;
        for (const auto &[path, values] : store.Sections().asKeyValueRange()) {
            for (const auto &[name, value] : values.asKeyValueRange()) {
                stored.append(path.mid(CAppSettings::RootPath().size() + 1) + u'\\' + name + u'='
                    + QString(value).replace(u'\n', u"\\n"_s));
            }
        }
        stored.sort();
        const QByteArray golden =
            Content(QStringLiteral(ORDELIN_SOURCE_DIR "/tests/settings/factory_values.txt"));
        const QStringList expected = QString::fromUtf8(golden).trimmed().split(u'\n');
        for (const QString &line : std::as_const(stored)) {
            QVERIFY2(expected.contains(line), qPrintable(line));
        }
        QCOMPARE(stored, expected);
    }

    void bounds()
    {
        const struct
        {
            QString section, name, stored, loaded;
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
            {u"quiz\\quizchallenge"_s, u"rightSoundFile"_s, u"x.wav"_s, u"x.wav"_s},
            {u"easykey"_s, u"keys"_s, u" å \n\tß"_s, u"å\nß"_s}, // blanks around the items of a list
            {u"easykey"_s, u"keys"_s, u"a\n\nb\n"_s, u"a\n\nb"_s}, // an empty item, and a final line break
        };
        for (const auto &row : rows) {
            CMemoryStore store;
            const QString path = CAppSettings::RootPath() + u'\\' + row.section;
            store.Write(path, row.name, row.stored);
            InMemory run(store);
            run.settings.Exchange(false);
            QCOMPARE(store.Read(path, row.name).value_or(QString()), row.loaded);
        }
    }

    void resettingKeepsTheLanguage()
    {
        CMemoryStore store;
        InMemory run(store);
        run.settings.misc.languageFile = u"x"_s;
        run.settings.misc.plugInUse = false;
        run.settings.misc.fontSize = 30;
        run.settings.easykey.keys = {u"a"_s};
        CScriptedPrompt prompt;
        prompt.answers = {PromptAnswer::No, PromptAnswer::Cancel, PromptAnswer::Yes};
        QVERIFY(!run.settings.ResetToFactory(prompt) && !run.settings.ResetToFactory(prompt));
        QCOMPARE(run.settings.misc.fontSize, 30);
        QVERIFY(run.settings.ResetToFactory(prompt));
        QCOMPARE(run.settings.misc.languageFile, u"x"_s);
        QVERIFY(!run.settings.misc.plugInUse);
        QCOMPARE(run.settings.misc.fontSize, 11);
        QVERIFY(run.settings.easykey.keys.isEmpty());
    }

    void iniFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"new folder/Ordelin.ini"_s);
        const QString author = u"Åsa, \"x\"; y=z\\\nœ"_s;
        {
            WithFile first(path);
            WithFile second(path);
            QVERIFY(first.settings.isFirstRun);
            first.settings.editor.author = author;
            first.settings.fallingWord.speed = 99;
            first.settings.easykey.keys = {u"ñ"_s, u"\u0301"_s};
            second.settings.editor.author = u"second"_s;
            second.settings.Exchange(false);
            first.settings.Exchange(false); // The last to write wins.
        }
        const WithFile again(path);
        QVERIFY(!again.settings.isFirstRun);
        QCOMPARE(again.settings.editor.author, author);
        QCOMPARE(again.settings.fallingWord.speed, 99);
        QCOMPARE(again.settings.easykey.keys, (QStringList{u"ñ"_s, u"\u0301"_s}));
        const QByteArray text = Content(path);
        for (const char *line : {"[editor]\n", "\nundoSize=10\n", "\nlang1first=1\n", "\nrequizNumber=3\n"}) {
            QVERIFY2(text.contains(line), line);
        }
        QVERIFY(!text.contains("section="));
    }

    void iniFileEditedByHand()
    {
        const QTemporaryDir folder;
        const WithFile run(WriteFile(folder.filePath(u"Ordelin.ini"_s),
            "garbage\n[editor]\nauthor=Eva, Bo, x\nundoSize=many, or few\n[quiz\n=5\nrequizNumber=\n"
            "[find]\nlanguage=1\n\xFF\xFE[misc]\nautoOpen=@Invalid()\nfontSize=@ByteArray(12)\n[import]"
            "\nlang1=\"open\n"));
        QCOMPARE(run.settings.editor.author, u"Eva, Bo, x"_s);
        QCOMPARE(run.settings.editor.undoSize, 10);
        QCOMPARE(run.settings.find.language, 1);
        QCOMPARE(run.settings.quiz.requizNumber, 3);
    }

    void iniTextIsTheToolkits()
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
        const IniValues values = ParseIni(Content(path));
        QCOMPARE(values.size(), 3 * texts.size());
        for (qsizetype i = 0; i < texts.size(); ++i) {
            QCOMPARE(values.value(u"editor/"_s + names.at(i % names.size()) + QString::number(i)), texts.at(i));
            QCOMPARE(values.value(u"top"_s + QString::number(i)), texts.at(i));
            QCOMPARE(values.value(u"General/"_s + QString::number(i)), texts.at(i));
        }
        QCOMPARE(ParseIni(FormatIni(values)), values);
    }

    void iniThatIsNoFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Ordelin.ini"_s);
        QVERIFY(QDir().mkpath(path + u".lock"_s));
        QCOMPARE(mkfifo(path.toUtf8().constData(), 0666), 0);
        WithFile run(path);
        QCOMPARE(run.settings.editor.undoSize, 10);
        run.settings.Exchange(false);
        QVERIFY(!run.store.Flush());
        QVERIFY(QFile::remove(path)); // Then there is room for what was not written.
        QVERIFY(run.store.Flush() && QFileInfo(path).isFile());
    }

    void iniSectionsStay()
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
};

QTEST_GUILESS_MAIN(AppSettingsTest)
#include "app_settings_test.moc"
