// SPDX-License-Identifier: MIT
#include "resources/texts.h"
#include "shell/ui/help_text.h"
#include "shell/ui/help_window.h"
#include "support/scripted_prompt.h"
#include "support/widgets.h"

#include <QDialog>
#include <QScrollBar>
#include <QTreeWidget>

namespace {

struct Help
{
    CTexts texts;
    CScriptedPrompt prompt;
    QStringList opened;
    CHelpWindow window;

    explicit Help(const QString &folder = QStringLiteral(ORDELIN_SOURCE_DIR))
        : window(texts, {folder}, prompt, [this](const QString &file) { opened.append(file); })
    {
    }
    CHelpText &Shown() const { return *Find<CHelpText>(&window, "helpText"); }
    QString Chapter() const { return Find<QTreeWidget>(&window, "contents")->currentItem()->text(0); }
};

}

class HelpWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noHelp()
    {
        Help help(u"/nowhere"_s);
        help.window.ShowSection({});
        QCOMPARE(help.prompt.numbers, QList<int>{Text::CannotOpenHelp});
        QVERIFY(!help.window.isVisible());
    }

    void sections()
    {
        Help help;
        help.window.ShowSection(u"quizzes"_s);
        QVERIFY(QTest::qWaitForWindowExposed(&help.window));
        QCOMPARE(help.Chapter(), u"Förhör"_s);
        const int place = help.Shown().verticalScrollBar()->value();
        QVERIFY(place > 0);
        help.window.ShowSection(u"keys"_s);
        QVERIFY(help.Shown().verticalScrollBar()->value() > place);
        Find<QPushButton>(&help.window, "back")->click();
        QCOMPARE(help.Chapter(), u"Förhör"_s);
        QCOMPARE(help.Shown().verticalScrollBar()->value(), place);
        Find<QPushButton>(&help.window, "inBrowser")->click();
        QCOMPARE(help.opened, QStringList{QStringLiteral(ORDELIN_SOURCE_DIR "/help/se.html")});
        QTest::keyClick(&help.window, Qt::Key_Escape);
        QVERIFY(!help.window.isVisible());
    }

    void search()
    {
        Help help;
        help.window.ShowSection({});
        auto *const search = Find<QLineEdit>(&help.window, "search");
        auto *const hits = Find<QLabel>(&help.window, "hits");
        QTest::keyClick(&help.window, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(search, u"asterisk"_s);
        QVERIFY(hits->text().section(u' ', 0, 0).toInt() > 2);
        const int first = help.Shown().textCursor().selectionStart();
        QTest::keyClick(search, Qt::Key_Return);
        QVERIFY(help.Shown().textCursor().selectionStart() > first);
        QTest::keyClick(search, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(search, Qt::Key_Return, Qt::ShiftModifier); // Round the beginning.
        QVERIFY(help.Shown().textCursor().selectionStart() > first);
        QTest::keyClicks(search, u"qqq"_s);
        QCOMPARE(hits->text(), u"Inga träffar"_s);
    }

    void besideAQuiz()
    {
        QWidget mainWindow;
        QDialog quiz(&mainWindow);
        quiz.setWindowModality(Qt::WindowModal);
        quiz.show();
        Help help;
        help.window.ShowSection(u"quizzes"_s);
        QVERIFY(QTest::qWaitForWindowActive(&help.window));
        QTest::mouseClick(Find<QPushButton>(&help.window, "inBrowser"), Qt::LeftButton);
        QCOMPARE(help.opened.size(), 1);
    }
};

QTEST_MAIN(HelpWindowTest)
#include "help_window_test.moc"
