// SPDX-License-Identifier: MIT
#include "platform/ui/type_ahead_filter.h"

#include <QApplication>
#include <QEventLoop>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include <utility>

QT_BEGIN_NAMESPACE
// What comes before a key press that may be a shortcut; the toolkit declares it for its own tests alone.
// NOLINTNEXTLINE(readability-identifier-naming)
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *receiver, ulong timestamp, int key,
    Qt::KeyboardModifiers modifiers, const QString &text, bool autorepeat, ushort count);
QT_END_NAMESPACE

CTypeAheadFilter::CTypeAheadFilter(Clock clock, QObject *parent)
    : QObject(parent), m_typeAhead(std::move(clock))
{
}

int CTypeAheadFilter::Ask(QMessageBox &box)
{
    if (m_window.isNull()) {
        m_window = box.parentWidget()->window();
        qApp->installEventFilter(this);
    }
    m_box = &box;
    const bool sending = std::exchange(m_sending, false); // What is typed now is typed, not sent on.
    m_typeAhead.QuestionOpened();
    m_hasFocus = ShowDeaf(box);
    const int answer = m_hasFocus ? box.exec() : box.result();
    m_hasFocus = false;
    m_typeAhead.QuestionClosed();
    m_sending = sending;
    m_box = nullptr;
    if (m_typeAhead.HasKept()) {
        GoOnSoon(); // When what asked is done.
    } else if (!sending) {
        Stop();
    }
    return answer;
}

bool CTypeAheadFilter::ShowDeaf(QMessageBox &box)
{
    // Without the focus, so that input methods go on composing, and not modal, since the toolkit throws away
    // what is typed in a blocked window. Clicks are kept off by the filter until it is.
    const Qt::WindowModality modality = box.windowModality();
    box.setWindowModality(Qt::NonModal);
    box.setAttribute(Qt::WA_ShowWithoutActivating);
    QEventLoop loop;
    connect(&box, &QDialog::finished, &loop, [&loop] { loop.exit(0); });
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, &loop, [this, &loop, &timer] {
        if (m_typeAhead.TryToHear()) {
            loop.exit(1);
        } else {
            timer.start(m_typeAhead.DeafFor());
        }
    });
    timer.start(m_typeAhead.DeafFor());
    box.show();
    const bool hears = loop.exec() == 1 && m_typeAhead.TryToHear();
    const QPoint place = box.pos();
    box.hide();
    box.move(place); // It doesn't jump under the mouse.
    box.setAttribute(Qt::WA_ShowWithoutActivating, false);
    box.setWindowModality(modality);
    return hears;
}

bool CTypeAheadFilter::IsPartOf(const QObject *watched, const QWidget *window)
{
    if (window == nullptr) {
        return false;
    }
    const auto *const widget = qobject_cast<const QWidget *>(watched);
    return widget != nullptr ? widget->window() == window : watched == window->windowHandle();
}

bool CTypeAheadFilter::KeepKey(const QKeyEvent &event)
{
    const bool announced = event.type() == QEvent::ShortcutOverride;
    if (announced || m_announcedKey != event.key()) {
        m_typeAhead.Keep({event.key(), event.modifiers(), event.text(), event.isAutoRepeat()});
    }
    m_announcedKey = announced ? event.key() : 0;
    return true;
}

void CTypeAheadFilter::NoteKeyOfBox(const QKeyEvent &event)
{
    constexpr auto CommandKeys = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
    if (m_typeAhead.TryToHear() && !(event.modifiers() & CommandKeys) && !event.text().isEmpty()
        && event.text().at(0).isPrint() && event.key() != Qt::Key_Space) {
        m_typeAhead.TypedOn();
    }
}

bool CTypeAheadFilter::IsFirstStop(const QObject *watched) const
{
    return !watched->isWidgetType() || IsPartOf(watched, m_box) || m_window->focusWidget() == nullptr
        || watched == m_window->focusWidget();
}

bool CTypeAheadFilter::eventFilter(QObject *watched, QEvent *event)
{
    const bool inWindow = IsPartOf(watched, m_window);
    if (inWindow && event->type() == QEvent::WindowActivate) {
        GoOnSoon();
    }
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && m_hasFocus && !m_sending && IsPartOf(watched, m_box)) {
        NoteKeyOfBox(*static_cast<QKeyEvent *>(event));
    }
    if (m_sending || !m_typeAhead.Keeps() || !(inWindow || IsPartOf(watched, m_box))) {
        return false;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (!IsFirstStop(watched)) {
            return false;
        }
        event->accept();
        return KeepKey(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        m_typeAhead.NoteTyping(); // An input method may have taken the press.
        event->accept();
        return true;
    case QEvent::Shortcut:
        event->accept();
        return true;
    case QEvent::InputMethod:
        m_typeAhead.NoteTyping();
        if (const QString text = static_cast<QInputMethodEvent *>(event)->commitString(); !text.isEmpty()) {
            m_typeAhead.Keep({.text = text});
        }
        event->accept();
        return true;
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::Drop:
        event->ignore();
        return inWindow && m_typeAhead.IsQuestionOpen();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::ContextMenu:
        return inWindow && m_typeAhead.IsQuestionOpen();
    default:
        return false;
    }
}

void CTypeAheadFilter::GoOnSoon()
{
    // One key at a time: what it puts off to the event loop comes before the next one.
    if (!std::exchange(m_goesOnSoon, true)) {
        QMetaObject::invokeMethod(this, &CTypeAheadFilter::GoOn, Qt::QueuedConnection);
    }
}

void CTypeAheadFilter::GoOn()
{
    m_goesOnSoon = false;
    if (m_window.isNull() || m_typeAhead.IsQuestionOpen() || m_sending) {
        return;
    }
    if (!m_window->isVisible()) {
        m_typeAhead.Forget();
        Stop();
        return;
    }
    if (!m_window->isActiveWindow()) {
        return; // It goes on when the window is active again.
    }
    QWidget *const popup = QApplication::activePopupWidget();
    QWidget *const focus = popup != nullptr ? popup : m_window->focusWidget();
    if (const std::optional<TypedInput> next = m_typeAhead.TakeNext()) {
        m_sending = true;
        Send(focus != nullptr ? *focus : *m_window, *next);
        m_sending = false;
        m_typeAhead.Done();
    }
    if (m_typeAhead.HasKept()) {
        GoOnSoon();
    } else {
        Stop();
    }
}

void CTypeAheadFilter::Send(QWidget &target, const TypedInput &input)
{
    if (input.key == 0) {
        QInputMethodEvent composed;
        composed.setCommitString(input.text);
        QCoreApplication::sendEvent(&target, &composed);
        return;
    }
    const QPointer<QWidget> receiver = &target;
    if (qt_sendShortcutOverrideEvent(receiver, 0, input.key, input.modifiers, input.text, input.repeated, 1)) {
        return;
    }
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!receiver.isNull()) {
            QKeyEvent key(type, input.key, input.modifiers, input.text, input.repeated);
            QCoreApplication::sendEvent(receiver, &key);
        }
    }
}

void CTypeAheadFilter::Stop()
{
    qApp->removeEventFilter(this);
    m_window.clear();
    m_announcedKey = 0;
}
