// SPDX-License-Identifier: MIT
#include "shell/program_end.h"
#include "support/test.h"

#include <QHash>

#include <functional>

class ProgramEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ends()
    {
        const struct
        {
            QString story;
            bool keepsCopy, fromOutside, savesSettingsOfFirstRun;
        } rows[] = {
            {u"start,close"_s, false, false, true},
            {u"close"_s, false, false, false}, // While the questions of the start are open.
            {u"start,change,signal"_s, true, true, true},
            {u"signal,start"_s, true, true, false},
            {u"start,change,give up,end,quit"_s, false, true, true},
            {u"start,change,give up,end,change,quit"_s, true, true, true}, // There was more work.
            {u"start,change,give up,end,type,quit"_s, true, true, true},
            {u"start,change,refuse,end,quit"_s, true, true, true},
            {u"start,change,end,quit"_s, true, true, true}, // The session let nobody be asked.
            {u"start,change,give up,end"_s, false, false, true}, // Killed without a word.
            {u"start,change,refuse,end"_s, true, false, true},
            {u"start,change,give up,end,signal"_s, true, true, true},
            {u"start,change,give up,end,refuse,end,quit"_s, true, true, true},
            {u"start,change,refuse,end,close"_s, false, false, true}, // It went on; the user saved or gave up.
            {u"start,change,refuse,end,close,signal"_s, true, true, true},
        };
        for (const auto &row : rows) {
            CProgramEnd end;
            const quint64 counter = Play(end, row.story);
            QCOMPARE(end.KeepsCopy(counter), row.keepsCopy);
            QCOMPARE(end.IsFromOutside(), row.fromOutside);
            QCOMPARE(end.SavesSettings(true), row.savesSettingsOfFirstRun);
            QVERIFY(end.SavesSettings(false));
        }
    }

private:
    /// Lets happen what the story tells, and returns the counter of changes.
    static quint64 Play(CProgramEnd &end, const QString &story)
    {
        quint64 counter = 0;
        const QHash<QString, std::function<void()>> events = {
            {u"start"_s, [&] { end.StartIsOver(); }},
            {u"change"_s, [&] { ++counter; }},
            {u"type"_s, [&] { end.UserTyped(); }},
            {u"give up"_s, [&] { end.SessionAsks(counter); }},
            {u"refuse"_s, [&] { end.SessionAsks(std::nullopt); }},
            {u"end"_s, [&] { end.SessionEnds(); }},
            {u"close"_s,
                [&] {
                    end.UserCloses();
                    QVERIFY(!end.Quits());
                }},
            {u"quit"_s, [&] { QVERIFY(end.Quits() && !end.Quits()); }}, // Once is enough.
            {u"signal"_s, [&] { end.Signalled(); }},
        };
        for (const QString &event : story.split(u',')) {
            events.value(event)();
        }
        return counter;
    }
};

QTEST_APPLESS_MAIN(ProgramEndTest)
#include "program_end_test.moc"
