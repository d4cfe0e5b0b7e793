// SPDX-License-Identifier: MIT
#include "document/undo_history.h"
#include "support/lists.h"

namespace {

/// The history as a plain list of descriptions, by the rules as they read.
struct PlainHistory
{
    QList<QStringList> states = {{}};
    qsizetype current = 0;
    qsizetype most = 1;

    void Snapshot()
    {
        if (most == 1) {
            return;
        }
        states = states.mid(0, current + 1);
        if (states.size() == most) {
            states.removeFirst();
            --current;
        }
        const QStringList copy = states[current];
        states.append(copy);
        ++current;
    }
};

}

class UndoHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithPlainCopies()
    {
        for (quint32 seed = 0; seed < 60; ++seed) {
            CRandom random(seed);
            CUndoHistory history;
            PlainHistory plain;
            for (int step = 0; step < 200; ++step) {
                switch (const int draw = random.Next() % 40; draw) {
                case 0: {
                    const int size = random.Next() % 6;
                    if (size + 1 < plain.most) {
                        plain.states = {plain.states[plain.current]};
                        plain.current = 0;
                    }
                    plain.most = size + 1;
                    history.SetUndoSize(size);
                    break;
                }
                case 1:
                    history.ResetHistory(MakeList("new"));
                    plain.states = {{u"new"_s}};
                    plain.current = 0;
                    break;
                default:
                    if (draw < 12) {
                        history.Undo();
                        plain.current = std::max<qsizetype>(plain.current - 1, 0);
                    } else if (draw < 20) {
                        history.Redo();
                        plain.current = std::min(plain.current + 1, plain.states.size() - 1);
                    } else {
                        const QString word = QString::number(step);
                        history.Snapshot();
                        plain.Snapshot();
                        QStringList &state = plain.states[plain.current];
                        if (draw % 2 == 0 || state.isEmpty()) {
                            history.Current().Insert(CWordEntry(word));
                            state.append(word);
                        } else {
                            history.Current().SetEntryField(word, 0, 0, false);
                            state.first() = word;
                        }
                    }
                }
                QCOMPARE(Describe(history.Current()), plain.states[plain.current]);
                QCOMPARE(history.UndoCount(), int(plain.current));
                QCOMPARE(history.RedoCount(), int(plain.states.size() - plain.current) - 1);
            }
        }
    }
};

QTEST_APPLESS_MAIN(UndoHistoryTest)
#include "undo_history_test.moc"
