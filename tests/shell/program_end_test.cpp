// SPDX-License-Identifier: MIT
#include "shell/program_end.h"

#include <QStringList>
#include <QTest>

class ProgramEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ends_data();
    void ends();
};

void ProgramEndTest::ends_data()
{
    QTest::addColumn<QString>("story");
    QTest::addColumn<bool>("keepsCopy");
    QTest::addColumn<bool>("fromOutside");
    QTest::addColumn<bool>("savesSettingsOfFirstRun");
    const auto row = [](const char *story, bool keepsCopy, bool fromOutside, bool savesSettings) {
        QTest::newRow(story) << QString::fromLatin1(story) << keepsCopy << fromOutside << savesSettings;
    };
    row("start,close", false, false, true);
    row("close", false, false, false); // While the questions of the start are open.
    row("start,change,signal", true, true, true);
    row("signal,start", true, true, false);
    row("start,change,give up,end,quit", false, true, true);
    row("start,change,give up,end,change,quit", true, true, true); // It went on, and there was more work.
    row("start,change,give up,end,type,quit", true, true, true);
    row("start,change,refuse,end,quit", true, true, true);
    row("start,change,end,quit", true, true, true); // The session let nobody be asked.
    row("start,change,give up,end", false, false, true); // Killed without a word.
    row("start,change,refuse,end", true, false, true);
    row("start,change,give up,end,signal", true, true, true);
    row("start,change,give up,end,refuse,end,quit", true, true, true);
    row("start,change,refuse,end,close", false, false, true); // It went on, and the user saved or gave up.
    row("start,change,refuse,end,close,signal", true, true, true);
}

void ProgramEndTest::ends()
{
    QFETCH(QString, story);
    CProgramEnd end;
    quint64 counter = 0;
    for (const QString &event : story.split(u',')) {
        if (event == QStringLiteral("start")) {
            end.StartIsOver();
        } else if (event == QStringLiteral("change")) {
            ++counter;
        } else if (event == QStringLiteral("type")) {
            end.UserTyped();
        } else if (event == QStringLiteral("give up")) {
            end.SessionAsks(counter);
        } else if (event == QStringLiteral("refuse")) {
            end.SessionAsks(std::nullopt);
        } else if (event == QStringLiteral("end")) {
            end.SessionEnds();
        } else if (event == QStringLiteral("close")) {
            end.UserCloses();
            QVERIFY(!end.Quits());
        } else if (event == QStringLiteral("quit")) {
            QVERIFY(end.Quits());
            QVERIFY(!end.Quits()); // Once is enough.
        } else if (event == QStringLiteral("signal")) {
            end.Signalled();
        }
    }
    QTEST(end.KeepsCopy(counter), "keepsCopy");
    QTEST(end.IsFromOutside(), "fromOutside");
    QTEST(end.SavesSettings(true), "savesSettingsOfFirstRun");
    QVERIFY(end.SavesSettings(false));
}

QTEST_APPLESS_MAIN(ProgramEndTest)
#include "program_end_test.moc"
