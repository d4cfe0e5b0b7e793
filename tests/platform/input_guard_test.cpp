// SPDX-License-Identifier: MIT
#include "platform/input_guard.h"
#include "support/test.h"

using namespace std::chrono_literals;
using Change = CInputGuard::Change;
using Input = CInputGuard::Input;

class InputGuardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drops()
    {
        const auto dropped = [](const CInputGuard &guard, std::chrono::milliseconds now) {
            QString inputs;
            inputs += guard.Drops(Input::Key, now) ? u'k' : u'-';
            inputs += guard.Drops(Input::HastyAnswer, now) ? u'h' : u'-';
            inputs += guard.Drops(Input::Click, now) ? u'c' : u'-';
            inputs += guard.Drops(Input::ClickOnButton, now) ? u'b' : u'-';
            return inputs;
        };
        CInputGuard guard;
        QCOMPARE(dropped(guard, 0ms), u"----"_s); // Nothing appeared.
        guard.Appeared(Change::NewWindow, 1000ms);
        QCOMPARE(dropped(guard, 1000ms), u"khcb"_s);
        QCOMPARE(dropped(guard, 1399ms), u"khcb"_s);
        QCOMPARE(dropped(guard, 1400ms), u"----"_s);
        guard.Appeared(Change::NewQuestion, 2000ms);
        QCOMPARE(dropped(guard, 2399ms), u"-h-b"_s);
        guard.Appeared(Change::NewQuestion, 2300ms); // The next one: another pause.
        QCOMPARE(dropped(guard, 2699ms), u"-h-b"_s);
        QCOMPARE(dropped(guard, 2700ms), u"----"_s);
    }
};

QTEST_APPLESS_MAIN(InputGuardTest)
#include "input_guard_test.moc"
