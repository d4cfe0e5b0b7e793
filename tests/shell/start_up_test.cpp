// SPDX-License-Identifier: MIT
#include "document/recent_files.h"
#include "platform/data_folders.h"
#include "resources/texts.h"
#include "settings/app_settings.h"
#include "shell/help.h"
#include "shell/language_choice.h"
#include "shell/start_up.h"
#include "shell/window_placement.h"
#include "support/files.h"
#include "support/scripted_prompt.h"

#include <QLocale>

namespace {

const char *const English = "Ordelin-spr\xC3\xA5kmodul\n1=ordelin2.31\n2=English\n3=enu\n63506=Choose\n"
                            "63508=English chosen.\n61000=Swedish\n60003=./help/en.html\n";

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

    void firstRunWithoutModule()
    {
        CMemoryStore store;
        {
            Start first(store);
            QCOMPARE(first.asked, 1);
            QVERIFY(first.startUp.ModulePath().isEmpty());
            QCOMPARE(first.settings.editor.language1, u"Svenska"_s);
            first.settings.Exchange(false);
        }
        QCOMPARE(Start(store).asked, 0);
    }

    void firstRunWithModule()
    {
        const QString module = WriteFile(Path("en.ordmod"), English);
        CMemoryStore store;
        // Who asks on the command line before any language was chosen is answered in that of the locale.
        const CTexts texts;
        const auto answersIn = [&](const char *locale) {
            return LoadLanguageSettings(store, CAppSettings::RootPath(), texts, {m_folder->path()},
                QLocale(QString::fromLatin1(locale)))
                .languageFile;
        };
        QCOMPARE(answersIn("en_GB"), module);
        QCOMPARE(answersIn("sv_SE"), QString());
        Start first(store, module);
        QCOMPARE(first.startUp.ModulePath(), module);
        QCOMPARE(first.texts.Get(63506), u"Choose"_s);
        QCOMPARE(first.settings.editor.language1, u"Swedish"_s);
        // What the module lacks is the program's own.
        QCOMPARE(first.settings.editor.language2, u"Engelska"_s);
        first.settings.editor.language1 = u"Latin"_s;
        first.settings.Exchange(false);
        const Start second(store);
        QCOMPARE(second.texts.Get(63506), u"Choose"_s);
        QCOMPARE(second.settings.editor.language1, u"Latin"_s);
        QCOMPARE(answersIn("sv_SE"), module);
    }

    void unusableModules()
    {
        const QByteArray english = English;
        const std::pair<QByteArray, ModuleTest> rows[] = {
            {english, ModuleTest::Ok},
            {QByteArray(english).replace("=ordelin2", "=Ordelin2"), ModuleTest::OtherVersion},
            {QByteArray(english).replace("1=ordelin2.31\n", ""), ModuleTest::OtherVersion},
            {{}, ModuleTest::CannotLoad}, {QByteArray(5000, '\x7F'), ModuleTest::CannotLoad},
            {english + QByteArray(5 << 20, 'x'), ModuleTest::CannotLoad},
            {english + "8=" + QByteArray(1 << 20, '\\'), ModuleTest::Ok}, // endless escapes
        };
        for (const auto &[content, result] : rows) {
            const QString path = WriteFile(Path("x.ordmod"), content);
            QByteArray module;
            LanguageEntry entry;
            QCOMPARE(TestLanguageModule(path, CTexts(), module, &entry), result);
            QCOMPARE(module.isEmpty(), result != ModuleTest::Ok);
            CMemoryStore store;
            const Start start(store, path);
            QCOMPARE(start.startUp.ModulePath().isEmpty(), result != ModuleTest::Ok);
            QCOMPARE(start.settings.misc.languageFile, path);
        }
    }

    void findingModules()
    {
        WriteFile(Path("program/a.ordmod"), English);
        WriteFile(Path("program/other/b.ordmod"), English);
        WriteFile(Path("program/ordmod/deep/er/c.ordmod"), English);
        WriteFile(
            Path("program/ordmod/old.ordmod"), "Ordelin-spr\xC3\xA5kmodul\n1=ordelin1\n2=Latin\n63506=X\n");
        WriteFile(Path("program/ordmod/no.ordmod"), "nothing");
        WriteFile(Path("data/ordmod/d.ordmod"), English);
        QDir().mkpath(Path("program/ordmod/folder.ordmod"));
        QFile::link(Path("program/ordmod"), Path("program/ordmod/deep/loop"));
        QFile::link(Path("program/ordmod/self.ordmod"), Path("program/ordmod/self.ordmod"));
        QStringList found;
        for (const LanguageEntry &entry :
            FindLanguages(CTexts(), {Path("program"), Path("data"), Path("none")})) {
            found.append(u"%1 %2 %3 %4"_s.arg(entry.path.mid(m_folder->path().size()), entry.name,
                entry.caption, entry.valid ? u"valid"_s : u"invalid"_s));
        }
        QCOMPARE(found,
            (QStringList{u" Svenska Välj språk valid"_s, u"/program/a.ordmod English Choose valid"_s,
                u"/program/ordmod/deep/er/c.ordmod English Choose valid"_s,
                u"/program/ordmod/old.ordmod Latin  invalid"_s,
                u"/data/ordmod/d.ordmod English Choose valid"_s}));
    }

    void choosingALanguage()
    {
        const QList<LanguageEntry> entries = {
            {.name = u"Svenska"_s, .abbreviation = u"sve"_s, .invalidFile = u"Ogiltig"_s},
            {.path = u"/d"_s,
                .name = u"Deutsch"_s,
                .abbreviation = u"deu"_s,
                .invalidFile = u"Falsch"_s,
                .fromNextStart = u"Ab jetzt"_s},
            {.path = u"/x"_s, .name = u"Old"_s, .valid = false},
            {.path = u"/e"_s, .name = u"English"_s, .abbreviation = u"ENU"_s},
        };
        const auto preselected = [&](const char *abbreviation) {
            return CLanguageChoice(entries, {}, true, QString::fromLatin1(abbreviation)).Selected();
        };
        QCOMPARE(preselected("enu"), 3);
        QCOMPARE(preselected("dea"), 1);
        QCOMPARE(preselected("fra"), 3);
        QCOMPARE(preselected(""), 3);
        QStringList found;
        for (const char *name : {"sv_SE", "en_US", "en_GB", "de_DE", "nb_NO", "fi_FI", "la"}) {
            found.append(LanguageAbbreviation(QLocale(QString::fromLatin1(name))));
        }
        QCOMPARE(found.join(u' '), u"sve enu eng deu nor fin lat"_s);

        CLanguageChoice choice(entries, u"/d"_s, false, u"enu"_s);
        QCOMPARE(choice.Selected(), 1);
        QCOMPARE(choice.RowText(1), u"Deutsch (/d)"_s);
        choice.Select(2);
        QVERIFY(!choice.CanAccept());
        QCOMPARE(choice.Confirmation(), u"Falsch"_s);
        choice.Select(1);
        MiscSettings settings;
        CScriptedPrompt prompt;
        choice.Accept(settings, prompt);
        QCOMPARE(settings.languageFile, u"/d"_s);
        QCOMPARE(prompt.texts, QStringList{u"Ab jetzt"_s});
        choice.Select(0);
        choice.Accept(settings, prompt);
        QVERIFY(settings.languageFile.isEmpty() && !settings.plugInUse);
    }

    void fileToReopen()
    {
        const QString path = WriteFile(Path("last.gls"), "x");
        CMemoryStore store;
        Start start(store);
        CRecentFiles recent(store, CAppSettings::RootPath());
        const auto file = [&](bool openOnClosing, const QString &named = {}) {
            start.settings.misc.openOnClosing = openOnClosing;
            return start.startUp.FileToReopen(named, recent);
        };
        QCOMPARE(file(true), QString());
        recent.Add(path);
        QCOMPARE(file(true), path);
        QCOMPARE(file(true, u"named.gls"_s) + file(false), QString());
        QFile::remove(path);
        QCOMPARE(file(true), QString());
    }

    void help()
    {
        WriteFile(Path("program/help/other.html"), "x");
        WriteFile(Path("secret.html"), "x");
        const QString page = WriteFile(Path("data/help/en.html"), "x");
        const QStringList folders = {Path("program"), Path("data")};
        QCOMPARE(FindDataFile(folders, u"./help/en.html"_s), page);
        QCOMPARE(FindDataFile(folders, u"help/../../secret.html"_s), QString());
        QCOMPARE(FindDataFile(folders, page), QString());
        QCOMPARE(FindDataFile(folders, u"help"_s), QString());

        CTexts texts;
        QCOMPARE(FindHelp(texts, folders), QString()); // There is no Swedish one.
        QVERIFY(texts.LoadModule(English));
        QCOMPARE(FindHelp(texts, folders), page);
    }

    void placement()
    {
        // On a screen of 1000×800 with a panel of 30 at the top and 10 at the left.
        const DesktopGeometry desktop = {.screens = {0, 0, 1000, 800}, .workArea = {10, 30, 990, 770}};
        const struct
        {
            QString stored; // Status, left, top, right, bottom.
            QRect shown;
            bool maximised = false;
        } rows[] = {
            {u"1 100 50 500 350"_s, {110, 80, 400, 300}},
            {u"3 100 50 500 350"_s, {110, 80, 400, 300}, true},
            {u"2 100 50 500 350"_s, {110, 80, 400, 300}}, // minimised is shown as normal
            {u"1 3000 2000 3400 2300"_s, {968, 768, 400, 300}}, // a screen that is gone
            {u"1 -300 -200 100 100"_s, {-290, -170, 400, 300}}, // too far left stays
            {u"1 100 50 500"_s, {}},
            {u"1 a b c d"_s, {}},
            {u"1 100 50 100 350"_s, {}}, // no size
            {u"1 0 0 32767 32767"_s, {10, 30, 1000, 800}}, // larger than the screens
            {u"1 -2147483648 0 2147483647 9"_s, {}},
        };
        const QStringList names = {u"Status"_s, u"Left"_s, u"Top"_s, u"Right"_s, u"Bottom"_s};
        for (const auto &row : rows) {
            CMemoryStore store;
            const QStringList values = row.stored.split(u' ');
            for (int i = 0; i < values.size(); ++i) {
                store.Write(u"root\\Winpos"_s, names.at(i), values.at(i));
            }
            const auto placement = LoadWindowPlacement(store, u"root"_s, desktop);
            QCOMPARE(placement ? placement->rectangle : QRect(), row.shown);
            QCOMPARE(placement && placement->maximised, row.maximised);
            if (placement) { // Stored again, it does not creep.
                SaveWindowPlacement(store, u"root"_s, *placement, desktop);
                QCOMPARE(LoadWindowPlacement(store, u"root"_s, desktop)->rectangle, row.shown);
            }
        }
    }

private:
    QString Path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(StartUpTest)
#include "start_up_test.moc"
