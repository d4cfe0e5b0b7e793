// SPDX-License-Identifier: MIT
#include "quiz/quiz_kinds.h"
#include "resources/texts.h"
#include "shell/command_line.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"
#include "support/test.h"

#include <set>

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsSound()
    {
        const CTexts texts;
        std::set<int> ids;
        std::set<QString> shortcuts;
        for (const Command &command : CommandTable()) {
            QVERIFY2(ids.insert(command.id).second, qPrintable(QString::number(command.id)));
            for (const QString &shortcut : command.shortcuts) {
                QVERIFY2(shortcuts.insert(shortcut).second, qPrintable(shortcut));
            }
            const QString caption = texts.Get(Text::Caption(command.id));
            QVERIFY2(!caption.isEmpty(), qPrintable(QString::number(command.id)));
            QString shown = command.shortcuts.value(0);
            for (const auto &[key, swedish] :
                {std::pair("Up", "Uppil"), {"Down", "Nedpil"}, {"Return", "Retur"}}) {
                shown.replace(QLatin1StringView(key), QLatin1StringView(swedish));
            }
            QCOMPARE(caption.section(u'\t', 1), shown);
            QCOMPARE(texts.Get(command.id).count(u'\n'), 1);
        }
        // Everything in a menu or a tool bar is in the table, and the other way round.
        std::set<int> used;
        QList<CommandMenu> menus = CommandMenus() + CommandSubmenus();
        menus += {{Text::FileMenu, StandardToolBarCommands()}, {Text::FileMenu, QuizToolBarCommands()}};
        for (const CommandMenu &menu : std::as_const(menus)) {
            QVERIFY(!texts.Get(menu.title).isEmpty());
            used.insert(menu.commands.begin(), menu.commands.end());
        }
        std::erase_if(used, IsSubmenu);
        used.erase(CommandId::Separator);
        used.erase(CommandId::RecentFiles);
        QCOMPARE(used, ids);
    }

    void enabledRules()
    {
        const auto enabled = [](const CommandState &state) {
            std::set<int> ids;
            for (const Command &command : CommandTable()) {
                if (IsCommandEnabled(command, state)) {
                    ids.insert(command.id);
                }
            }
            return ids;
        };
        using namespace CommandId;
        const auto none = enabled({});
        const auto quiz = [](QuizKind kind) { return quizKindRow(kind).command; };
        QVERIFY(!none.contains(quiz(QuizKind::Standard)) && !none.contains(Copy) && !none.contains(Delete));
        QVERIFY(!none.contains(SelectAll) && enabled({.onPendingText = true}).contains(Delete));
        QVERIFY(none.contains(Find) && none.contains(Descending) && none.contains(Next));
        const auto three = enabled({.entries = 3, .selectedEntries = 1, .selectedRows = 1, .cursorColumn = 2});
        QVERIFY(three.contains(quiz(QuizKind::PairMatching)) && !three.contains(quiz(QuizKind::Alternatives)));
        QVERIFY(three.contains(Copy) && three.contains(PlaceInsertionPoint) && three.contains(MakeOneEntry));
        QVERIFY(!three.contains(SetFlag) && !three.contains(InsertComment));
        QVERIFY(enabled({.entries = 1, .selectedEntries = 1, .cursorColumn = 1}).contains(InvertFlag));
        const auto box = enabled({.entries = 3, .selectedEntries = 1, .inEditBox = true});
        QVERIFY(box.contains(InsertSynonym) && box.contains(SelectAll) && !box.contains(Cut)
            && !box.contains(Delete));
        QVERIFY(enabled({.inEditBox = true, .textSelected = true}).contains(Cut));
        QVERIFY(enabled({.canPasteSpecial = true}).contains(PasteSpecial) && !none.contains(PasteSpecial));
    }

    void commandLines()
    {
        const struct
        {
            const char *arguments;
            QString file;
            int error = 0;
            bool newList = false;
        } rows[] = {
            {"", {}},
            {"å.gls", u"å.gls"_s},
            {"file:///lists/a%20b.gls", u"/lists/a b.gls"_s},
            {"-- --x", u"--x"_s}, // a file that looks like a switch
            {"-platform offscreen a.gls", u"a.gls"_s}, // a switch of the toolkit
            {"--new -- --new", u"--new"_s, 0, true},
            {"--x", {}, Text::UnknownSwitch},
            {"a b", {}, Text::OneFileOnly},
        };
        for (const auto &[arguments, file, error, newList] : rows) {
            const CommandLine result =
                ParseCommandLine(QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
            QCOMPARE(result.file, file);
            QCOMPARE(result.error, error);
            QCOMPARE(result.newList, newList);
        }
    }

    void answers()
    {
        const CTexts texts;
        const auto answer = [&](const char *argument) {
            return AnswerCommandLine(ParseCommandLine({QString::fromLatin1(argument)}), texts, u"2.31"_s);
        };
        QCOMPARE(answer("--version").text, QByteArray("Ordelin 2.31\n"));
        QVERIFY(answer("--help").text.contains("--export-strings"));
        QVERIFY(answer("--export-strings").text.contains("\n62800=Avbryt\n"));
        const CommandLineAnswer wrong = answer("--x");
        QVERIFY(wrong.isError && wrong.text.startsWith("ordelin: ") && wrong.text.contains("--x\n"));
        QCOMPARE(wrong.exitCode, 2);
        QCOMPARE(FillCaption(u"%1 &till %2\tF1"_s, u"a&b"_s, u"%1\tc"_s), u"a&&b &till %1 c\tF1"_s);
    }
};

QTEST_APPLESS_MAIN(CommandsTest)
#include "commands_test.moc"
