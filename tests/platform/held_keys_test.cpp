// SPDX-License-Identifier: MIT
#include "platform/ui/held_keys.h"
#include "support/test.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

class HeldKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dialog = std::make_unique<QDialog>();
        auto *const layout = new QVBoxLayout(m_dialog.get());
        NoticeHeldKeys(*m_dialog);
        m_button = new QPushButton(m_dialog.get());
        layout->addWidget(m_button);
        m_clicks = 0;
        connect(m_button, &QPushButton::clicked, this, [this] { ++m_clicks; });
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        m_button->setFocus();
    }

    void enter()
    {
        Send(QEvent::KeyPress, Qt::Key_Return, 10, true); // Held since the window before.
        Send(QEvent::KeyRelease, Qt::Key_Return, 20);
        Send(QEvent::KeyPress, Qt::Key_Return, 20); // A repeat that the toolkit took for a press.
        QCOMPARE(m_clicks, 0);
        Send(QEvent::KeyRelease, Qt::Key_Return, 30);
        Send(QEvent::KeyPress, Qt::Key_Return, 90);
        QCOMPARE(m_clicks, 1);
    }

    void otherKeys()
    {
        // A button is clicked when the key is released.
        Send(QEvent::KeyPress, Qt::Key_Space, 10);
        for (const quint64 time : {500U, 530U, 560U}) {
            Send(QEvent::KeyRelease, Qt::Key_Space, time);
            Send(QEvent::ShortcutOverride, Qt::Key_Space, time);
            Send(QEvent::KeyPress, Qt::Key_Space, time);
        }
        QCOMPARE(m_clicks, 0);
        Send(QEvent::KeyRelease, Qt::Key_Space, 600);
        QTRY_COMPARE(m_clicks, 1);
        // Another key shows at once that the one before was released.
        Send(QEvent::KeyPress, Qt::Key_Space, 700);
        Send(QEvent::KeyRelease, Qt::Key_Space, 710);
        Send(QEvent::KeyPress, Qt::Key_Shift, 710);
        QCOMPARE(m_clicks, 2);
    }

    void controlsMadeLater()
    {
        auto *const field = new QLineEdit(m_dialog.get());
        field->show();
        field->setFocus();
        m_button->setDefault(true);
        Send(QEvent::KeyPress, Qt::Key_Enter, 10, true);
        QCOMPARE(m_clicks, 0);
        Send(QEvent::KeyPress, Qt::Key_Enter, 20);
        QCOMPARE(m_clicks, 1);
    }

private:
    void Send(QEvent::Type type, Qt::Key key, quint64 time, bool repeated = false)
    {
        QKeyEvent event(type, key, Qt::NoModifier, key == Qt::Key_Space ? u" "_s : QString(), repeated);
        event.setTimestamp(time);
        QApplication::sendEvent(m_dialog->windowHandle(), &event);
    }

    std::unique_ptr<QDialog> m_dialog;
    QPushButton *m_button = nullptr;
    int m_clicks = 0;
};

QTEST_MAIN(HeldKeysTest)
#include "held_keys_test.moc"
