// SPDX-License-Identifier: MIT
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "shell/command_line.h"
#include "shell/commands.h"

#include <QFile>
#include <QTest>

#include <set>

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableIsSound();
    void commandLines_data();
    void commandLines();
};

void CommandsTest::tableIsSound()
{
    const CTexts texts;
    std::set<int> ids;
    std::set<QString> shortcuts;
    for (const Command &command : commandTable()) {
        QVERIFY2(ids.insert(command.id).second, qPrintable(QString::number(command.id)));
        for (const QString &shortcut : command.shortcuts) {
            QVERIFY2(shortcuts.insert(shortcut).second, qPrintable(shortcut));
        }
        const QString caption = texts.Get(Text::Caption(command.id));
        QVERIFY2(!caption.isEmpty(), qPrintable(QString::number(command.id)));
        QCOMPARE(caption.section(u'\t', 1), command.shortcuts.value(0));
        QCOMPARE(texts.Get(command.id).count(u'\n'), 1);
    }
    // Everything in a menu or a tool bar is in the table, and the other way round.
    std::set<int> used;
    for (const CommandMenu &menu : commandMenus()) {
        QVERIFY(!texts.Get(menu.title).isEmpty());
        used.insert(menu.commands.begin(), menu.commands.end());
    }
    used.insert(standardToolBar().begin(), standardToolBar().end());
    used.erase(CommandId::Separator);
    used.erase(CommandId::RecentFiles);
    QCOMPARE(used, ids);
}

void CommandsTest::commandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("error");
    const auto list = [](const char *arguments) {
        return QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts);
    };
    QTest::newRow("nothing") << list("") << "" << 0;
    QTest::newRow("a file") << list("å.gls") << "å.gls" << 0;
    QTest::newRow("a file URL") << list("file:///lists/a%20b.gls") << "/lists/a b.gls" << 0;
    QTest::newRow("a file that looks like a switch") << list("-- --x") << "--x" << 0;
    QTest::newRow("unknown switch") << list("--x") << "" << int(Text::UnknownSwitch);
    QTest::newRow("two files") << list("a b") << "" << int(Text::OneFileOnly);
}

void CommandsTest::commandLines()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, file);
    QFETCH(int, error);
    const CommandLine result = parseCommandLine(arguments);
    QCOMPARE(result.file, file);
    QCOMPARE(result.error, error);
}

QTEST_APPLESS_MAIN(CommandsTest)
#include "commands_test.moc"
