// SPDX-License-Identifier: MIT
#include "platform/input_guard.h"

#include <QTest>

using namespace std::chrono_literals;
using Change = CInputGuard::Change;
using Input = CInputGuard::Input;

class InputGuardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drops();
};

void InputGuardTest::drops()
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
    QCOMPARE(dropped(guard, 0ms), QStringLiteral("----")); // Nothing appeared.
    guard.Appeared(Change::NewWindow, 1000ms);
    QCOMPARE(dropped(guard, 1000ms), QStringLiteral("khcb"));
    QCOMPARE(dropped(guard, 1399ms), QStringLiteral("khcb"));
    QCOMPARE(dropped(guard, 1400ms), QStringLiteral("----"));
    guard.Appeared(Change::NewQuestion, 2000ms);
    QCOMPARE(dropped(guard, 2399ms), QStringLiteral("-h-b"));
    guard.Appeared(Change::NewQuestion, 2300ms); // The next one: another pause.
    QCOMPARE(dropped(guard, 2699ms), QStringLiteral("-h-b"));
    QCOMPARE(dropped(guard, 2700ms), QStringLiteral("----"));
}

QTEST_APPLESS_MAIN(InputGuardTest)
#include "input_guard_test.moc"
