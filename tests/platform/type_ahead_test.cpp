// SPDX-License-Identifier: MIT
#include "platform/input_guard.h"
#include "platform/type_ahead.h"
#include "support/test.h"

using namespace std::chrono_literals;
using Change = CInputGuard::Change;
using Input = CInputGuard::Input;

namespace {

struct Typist
{
    void Type(int key, std::chrono::milliseconds after)
    {
        now += after;
        if (typeAhead.Keeps()) {
            typeAhead.Keep({.key = key});
        } else {
            passed.append(key);
        }
    }
    QList<int> TakeAll()
    {
        QList<int> keys;
        while (const auto next = typeAhead.TakeNext()) {
            keys.append(next->key);
            typeAhead.Done();
        }
        return keys;
    }

    std::chrono::milliseconds now = 5000ms;
    QList<int> passed;
    CTypeAhead typeAhead{[this] { return now; }};
};

}

class TypeAheadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deafUntilAPause()
    {
        Typist typist;
        typist.Type('a', 0ms);
        typist.typeAhead.QuestionOpened();
        QCOMPARE(typist.typeAhead.DeafFor(), 400ms);
        typist.Type(Qt::Key_Return, 250ms);
        typist.Type('b', 250ms);
        QVERIFY(!typist.typeAhead.TryToHear());
        typist.now += 399ms;
        QVERIFY(!typist.typeAhead.TryToHear());
        typist.typeAhead.NoteTyping(); // A dead key.
        typist.Type('c', 399ms);
        typist.now += 400ms;
        QVERIFY(typist.typeAhead.TryToHear());
        typist.typeAhead.TypedOn(); // By who still looks elsewhere.
        QVERIFY(typist.typeAhead.Keeps() && typist.typeAhead.TryToHear());
        typist.Type(Qt::Key_Tab, 0ms);
        typist.Type(Qt::Key_Escape, 10ms); // Whoever answers may be quick.
        QCOMPARE(typist.passed, (QList<int>{'a', Qt::Key_Tab, Qt::Key_Escape}));
        QVERIFY(typist.TakeAll().isEmpty()); // Not while it is open.
        typist.typeAhead.QuestionClosed();
        QCOMPARE(typist.TakeAll(), (QList<int>{Qt::Key_Return, 'b', 'c'}));
        typist.Type('d', 0ms);
        QCOMPARE(typist.passed.last(), int('d'));
        QVERIFY(!typist.typeAhead.GoesOn());
    }

    void orderOverTwoQuestions()
    {
        Typist typist;
        typist.typeAhead.QuestionOpened();
        for (const int key : {'a', 'b', 'c'}) {
            typist.Type(key, 30ms);
        }
        typist.typeAhead.QuestionClosed();
        QCOMPARE(typist.typeAhead.TakeNext()->key, int('a'));
        // This one opens another question, which is deaf anew; what is typed goes behind what waits.
        typist.now += 1000ms;
        typist.typeAhead.QuestionOpened();
        typist.Type('d', 30ms);
        QVERIFY(!typist.typeAhead.TakeNext());
        typist.typeAhead.QuestionClosed();
        typist.typeAhead.Done();
        typist.Type('e', 30ms);
        QVERIFY(typist.typeAhead.GoesOn());
        QCOMPARE(typist.TakeAll(), (QList<int>{'b', 'c', 'd', 'e'}));
    }

    void keysWithoutAText()
    {
        Typist typist;
        typist.typeAhead.QuestionOpened();
        typist.Type(Qt::Key_Shift, 390ms);
        QCOMPARE(typist.typeAhead.DeafFor(), 400ms);
        // Enter held down says once what it says.
        typist.typeAhead.Keep({.key = Qt::Key_Return, .repeated = true});
        typist.typeAhead.Keep({.key = Qt::Key_E, .text = u"e"_s, .repeated = true});
        typist.typeAhead.Keep({.key = Qt::Key_Tab});
        typist.typeAhead.Keep({.key = Qt::Key_S, .modifiers = Qt::ControlModifier, .text = u"\x13"_s});
        typist.typeAhead.Keep({.text = u"éx"_s});
        typist.typeAhead.Keep({.key = Qt::Key_Backspace});
        QCOMPARE(typist.typeAhead.KeptText(), u"e\né"_s);
        typist.typeAhead.QuestionClosed();
        QCOMPARE(typist.TakeAll(), (QList<int>{Qt::Key_E, Qt::Key_Tab, Qt::Key_S, 0, Qt::Key_Backspace}));
    }

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

QTEST_APPLESS_MAIN(TypeAheadTest)
#include "type_ahead_test.moc"
