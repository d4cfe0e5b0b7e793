// SPDX-License-Identifier: MIT
#include "document/recent_files.h"
#include "platform/data_folders.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "shell/help.h"
#include "shell/language_choice.h"
#include "shell/start_up.h"
#include "shell/text_numbers.h"
#include "shell/window_placement.h"
#include "support/scripted_prompt.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char *const English = "Ordelin-spr\xC3\xA5kmodul\n1=ordelin2.31\n2=English\n3=enu\n63506=Choose\n"
                            "63508=English chosen.\n61000=Swedish\n60003=./help/en.html\n";

QString WriteFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path : QString();
}

/// One start of the program with a store that lasts.
struct Start
{
    explicit Start(CMemoryStore &store, const QString &chosen = {})
        : settings(store, texts), startUp(settings, texts, [this, chosen] {
              ++asked;
              if (!chosen.isEmpty()) {
                  settings.misc.languageFile = chosen;
                  settings.misc.plugInUse = true;
              }
          })
    {
        startUp.Prepare();
    }

    CTexts texts;
    CAppSettings settings;
    int asked = 0;
    CStartUp startUp;
};

}

class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void firstRunWithoutModule();
    void firstRunWithModule();
    void unusableModules_data();
    void unusableModules();
    void findingModules();
    void choosingALanguage();
    void abbreviations();
    void fileToReopen();
    void help();
    void placement_data();
    void placement();

private:
    QString Path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void StartUpTest::firstRunWithoutModule()
{
    CMemoryStore store;
    {
        Start first(store);
        QCOMPARE(first.asked, 1);
        QVERIFY(first.startUp.ModulePath().isEmpty());
        QCOMPARE(first.settings.editor.language1, QStringLiteral("Svenska"));
        first.settings.Exchange(false);
    }
    QCOMPARE(Start(store).asked, 0);
}

void StartUpTest::firstRunWithModule()
{
    const QString module = WriteFile(Path("en.ordmod"), English);
    CMemoryStore store;
    // Who asks on the command line before any language was chosen is answered in that of the locale.
    const CTexts texts;
    const auto answersIn = [&](const char *locale) {
        return LoadLanguageSettings(
            store, CAppSettings::RootPath(), texts, {m_folder->path()}, QLocale(QString::fromLatin1(locale)))
            .languageFile;
    };
    QCOMPARE(answersIn("en_GB"), module);
    QCOMPARE(answersIn("sv_SE"), QString());
    Start first(store, module);
    QCOMPARE(first.startUp.ModulePath(), module);
    QCOMPARE(first.texts.Get(63506), QStringLiteral("Choose"));
    QCOMPARE(first.settings.editor.language1, QStringLiteral("Swedish"));
    // What the module lacks is the program's own.
    QCOMPARE(first.settings.editor.language2, QStringLiteral("Engelska"));
    first.settings.editor.language1 = QStringLiteral("Latin");
    first.settings.Exchange(false);
    const Start second(store);
    QCOMPARE(second.texts.Get(63506), QStringLiteral("Choose"));
    QCOMPARE(second.settings.editor.language1, QStringLiteral("Latin"));
    QCOMPARE(answersIn("sv_SE"), module);
}

void StartUpTest::unusableModules_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("result");
    const QByteArray english = English;
    QTest::newRow("sound") << english << int(ModuleTest::Ok);
    QTest::newRow("key in another case")
        << QByteArray(english).replace("=ordelin2", "=Ordelin2") << int(ModuleTest::OtherVersion);
    QTest::newRow("no key") << QByteArray(english).replace("1=ordelin2.31\n", "")
                            << int(ModuleTest::OtherVersion);
    QTest::newRow("empty") << QByteArray() << int(ModuleTest::CannotLoad);
    QTest::newRow("binary") << QByteArray(5000, '\x7F') << int(ModuleTest::CannotLoad);
    QTest::newRow("huge") << english + QByteArray(5 << 20, 'x') << int(ModuleTest::CannotLoad);
    QTest::newRow("endless escapes") << english + "8=" + QByteArray(1 << 20, '\\') << int(ModuleTest::Ok);
}

void StartUpTest::unusableModules()
{
    QFETCH(QByteArray, content);
    QFETCH(int, result);
    const QString path = WriteFile(Path("x.ordmod"), content);
    const CTexts texts;
    QByteArray module;
    LanguageEntry entry;
    QCOMPARE(int(TestLanguageModule(path, texts, module, &entry)), result);
    QCOMPARE(module.isEmpty(), result != 0);
    CMemoryStore store;
    const Start start(store, path);
    QCOMPARE(start.startUp.ModulePath().isEmpty(), result != 0);
    QCOMPARE(start.settings.misc.languageFile, path);
}

void StartUpTest::findingModules()
{
    WriteFile(Path("program/a.ordmod"), English);
    WriteFile(Path("program/other/b.ordmod"), English);
    WriteFile(Path("program/ordmod/deep/er/c.ordmod"), English);
    WriteFile(Path("program/ordmod/old.ordmod"), "Ordelin-spr\xC3\xA5kmodul\n1=ordelin1\n2=Latin\n63506=X\n");
    WriteFile(Path("program/ordmod/no.ordmod"), "nothing");
    WriteFile(Path("data/ordmod/d.ordmod"), English);
    QDir().mkpath(Path("program/ordmod/folder.ordmod"));
    QFile::link(Path("program/ordmod"), Path("program/ordmod/deep/loop"));
    QFile::link(Path("program/ordmod/self.ordmod"), Path("program/ordmod/self.ordmod"));
    QStringList found;
    for (const LanguageEntry &entry : FindLanguages(CTexts(), {Path("program"), Path("data"), Path("none")})) {
        found.append(QStringLiteral("%1 %2 %3 %4")
                         .arg(entry.path.mid(m_folder->path().size()), entry.name, entry.caption,
                             entry.valid ? QStringLiteral("valid") : QStringLiteral("invalid")));
    }
    QCOMPARE(found,
        (QStringList{QStringLiteral(" Svenska Välj språk valid"),
            QStringLiteral("/program/a.ordmod English Choose valid"),
            QStringLiteral("/program/ordmod/deep/er/c.ordmod English Choose valid"),
            QStringLiteral("/program/ordmod/old.ordmod Latin  invalid"),
            QStringLiteral("/data/ordmod/d.ordmod English Choose valid")}));
}

void StartUpTest::choosingALanguage()
{
    const QList<LanguageEntry> entries = {
        {.name = QStringLiteral("Svenska"),
            .abbreviation = QStringLiteral("sve"),
            .invalidFile = QStringLiteral("Ogiltig")},
        {.path = QStringLiteral("/d"),
            .name = QStringLiteral("Deutsch"),
            .abbreviation = QStringLiteral("deu"),
            .invalidFile = QStringLiteral("Falsch"),
            .fromNextStart = QStringLiteral("Ab jetzt")},
        {.path = QStringLiteral("/x"), .name = QStringLiteral("Old"), .valid = false},
        {.path = QStringLiteral("/e"),
            .name = QStringLiteral("English"),
            .abbreviation = QStringLiteral("ENU")},
    };
    const auto preselected = [&](const char *abbreviation) {
        return CLanguageChoice(entries, {}, true, QString::fromLatin1(abbreviation)).Selected();
    };
    QCOMPARE(preselected("enu"), 3);
    QCOMPARE(preselected("dea"), 1);
    QCOMPARE(preselected("fra"), 3);
    QCOMPARE(preselected(""), 3);

    CLanguageChoice choice(entries, QStringLiteral("/d"), false, QStringLiteral("enu"));
    QCOMPARE(choice.Selected(), 1);
    QCOMPARE(choice.RowText(1), QStringLiteral("Deutsch (/d)"));
    choice.Select(2);
    QVERIFY(!choice.CanAccept());
    QCOMPARE(choice.Confirmation(), QStringLiteral("Falsch"));
    choice.Select(1);
    MiscSettings settings;
    CScriptedPrompt prompt;
    choice.Accept(settings, prompt);
    QCOMPARE(settings.languageFile, QStringLiteral("/d"));
    QCOMPARE(prompt.texts, QStringList{QStringLiteral("Ab jetzt")});
    choice.Select(0);
    choice.Accept(settings, prompt);
    QVERIFY(settings.languageFile.isEmpty() && !settings.plugInUse);
}

void StartUpTest::abbreviations()
{
    QStringList found;
    for (const char *name : {"sv_SE", "en_US", "en_GB", "de_DE", "nb_NO", "fi_FI", "la"}) {
        found.append(LanguageAbbreviation(QLocale(QString::fromLatin1(name))));
    }
    QCOMPARE(found.join(u' '), QStringLiteral("sve enu eng deu nor fin lat"));
}

void StartUpTest::fileToReopen()
{
    const QString path = WriteFile(Path("last.gls"), "x");
    CMemoryStore store;
    Start start(store);
    CRecentFiles recent(store, CAppSettings::RootPath());
    start.settings.misc.openOnClosing = true;
    QCOMPARE(start.startUp.FileToReopen({}, recent), QString());
    recent.Add(path);
    QCOMPARE(start.startUp.FileToReopen({}, recent), path);
    QCOMPARE(start.startUp.FileToReopen(QStringLiteral("named.gls"), recent), QString());
    start.settings.misc.openOnClosing = false;
    QCOMPARE(start.startUp.FileToReopen({}, recent), QString());
    start.settings.misc.openOnClosing = true;
    QFile::remove(path);
    QCOMPARE(start.startUp.FileToReopen({}, recent), QString());
}

void StartUpTest::help()
{
    WriteFile(Path("program/help/other.html"), "x");
    WriteFile(Path("secret.html"), "x");
    const QString page = WriteFile(Path("data/help/en.html"), "x");
    const QStringList folders = {Path("program"), Path("data")};
    QCOMPARE(FindDataFile(folders, QStringLiteral("./help/en.html")), page);
    QCOMPARE(FindDataFile(folders, QStringLiteral("help/../../secret.html")), QString());
    QCOMPARE(FindDataFile(folders, page), QString());
    QCOMPARE(FindDataFile(folders, QStringLiteral("help")), QString());

    CTexts texts;
    QCOMPARE(FindHelp(texts, folders), QString()); // There is no Swedish one.
    QVERIFY(texts.LoadModule(English));
    QCOMPARE(FindHelp(texts, folders), page);
}

void StartUpTest::placement_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    // Status, left, top, right, bottom; on a screen of 1000×800 with a panel of 30 at the top and 10 at the
    // left.
    QTest::newRow("normal") << "1 100 50 500 350"
                            << "110,80 400x300";
    QTest::newRow("maximised") << "3 100 50 500 350"
                               << "110,80 400x300 maximised";
    QTest::newRow("minimised is shown as normal") << "2 100 50 500 350"
                                                  << "110,80 400x300";
    QTest::newRow("a screen that is gone") << "1 3000 2000 3400 2300"
                                           << "968,768 400x300";
    QTest::newRow("too far left stays") << "1 -300 -200 100 100"
                                        << "-290,-170 400x300";
    QTest::newRow("partial") << "1 100 50 500"
                             << "";
    QTest::newRow("no numbers") << "1 a b c d"
                                << "";
    QTest::newRow("no size") << "1 100 50 100 350"
                             << "";
    QTest::newRow("larger than the screens") << "1 0 0 32767 32767"
                                             << "10,30 1000x800";
    QTest::newRow("absurd") << "1 -2147483648 0 2147483647 9"
                            << "";
}

void StartUpTest::placement()
{
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    const DesktopGeometry desktop = {.screens = {0, 0, 1000, 800}, .workArea = {10, 30, 990, 770}};
    const QString root = QStringLiteral("root");
    const QString section = QStringLiteral("root\\Winpos");
    const QStringList names = {QStringLiteral("Status"), QStringLiteral("Left"), QStringLiteral("Top"),
        QStringLiteral("Right"), QStringLiteral("Bottom")};
    CMemoryStore store;
    const QStringList values = stored.split(u' ');
    for (int i = 0; i < values.size(); ++i) {
        store.Write(section, names.at(i), values.at(i));
    }
    const auto placement = LoadWindowPlacement(store, root, desktop);
    QString found;
    if (placement) {
        const QRect &place = placement->rectangle;
        found =
            QStringLiteral("%1,%2 %3x%4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
        found += placement->maximised ? QStringLiteral(" maximised") : QString();
        // Stored again, it does not creep.
        SaveWindowPlacement(store, root, *placement, desktop);
        QCOMPARE(LoadWindowPlacement(store, root, desktop)->rectangle, place);
    }
    QCOMPARE(found, shown);
}

QTEST_APPLESS_MAIN(StartUpTest)
#include "start_up_test.moc"
