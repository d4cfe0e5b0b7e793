// SPDX-License-Identifier: MIT
#include "shell/ui/special_character_keys.h"

#include "platform/ui/digit_key.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"
#include "shell/ui/special_character_window.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWindow>

#include <optional>
#include <utility>

namespace {

/// Types into a widget that need not have the focus.
void TypeInto(QWidget &target, const QString &text)
{
    if (target.testAttribute(Qt::WA_InputMethodEnabled)) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&target, &event);
    } else {
        // It reads keys: a list that searches by what is typed, for example.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&target, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&target, &release);
    }
}

}

CSpecialCharacterKeys::CSpecialCharacterKeys(EasyKeySettings &settings, const CTexts &texts, QObject *parent)
    : QObject(parent), m_characters(settings, texts), m_texts(texts)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget * /*old*/, QWidget *now) { RememberTarget(now); });
    connect(
        qApp, &QGuiApplication::applicationStateChanged, this, &CSpecialCharacterKeys::RememberOtherProgram);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &CSpecialCharacterKeys::FollowFocus,
        Qt::QueuedConnection);
    RememberTarget(QApplication::focusWidget());
}

CSpecialCharacterKeys::~CSpecialCharacterKeys()
{
    // The focus changes once more while the window is taken down.
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    m_window.reset();
}

void CSpecialCharacterKeys::Toggle()
{
    if (!m_open) {
        Open();
    } else if (!m_window->HasFocus()) {
        m_window->TakeFocus();
    } else {
        Close();
    }
}

void CSpecialCharacterKeys::Open()
{
    RememberTarget(QApplication::focusWidget());
    if (m_window == nullptr) {
        MakeWindow();
    }
    m_open = true;
    const QWidget *const active = QApplication::activeWindow();
    m_window->Open(active != nullptr ? active->windowHandle() : nullptr);
    Dock();
    // Only once the window manager has the window is it known how wide its frame is.
    constexpr int FrameKnown = 100;
    QTimer::singleShot(FrameKnown, this, &CSpecialCharacterKeys::Dock);
    Q_EMIT OpenChanged(true);
}

void CSpecialCharacterKeys::MakeWindow()
{
    m_window = std::make_unique<CSpecialCharacterWindow>(m_characters, m_texts);
    connect(m_window.get(), &CSpecialCharacterWindow::TextChosen, this, &CSpecialCharacterKeys::Send);
    connect(m_window.get(), &CSpecialCharacterWindow::DockingChosen, this, &CSpecialCharacterKeys::Dock);
    connect(m_window.get(), &CSpecialCharacterWindow::TakingFocus, this, [this] { m_sender.RememberWindow(); });
    connect(m_window.get(), &CSpecialCharacterWindow::FocusNoLongerNeeded, this,
        &CSpecialCharacterKeys::GiveFocusBack);
    connect(m_window.get(), &CSpecialCharacterWindow::Closing, this, &CSpecialCharacterKeys::Closed);
}

void CSpecialCharacterKeys::Close()
{
    if (m_open) {
        m_window->close();
    }
}

void CSpecialCharacterKeys::Renew()
{
    const bool wasOpen = m_open;
    Close();
    m_window.reset();
    if (wasOpen) {
        Open();
    }
}

void CSpecialCharacterKeys::Closed()
{
    m_open = false;
    if (m_window->HasFocus()) {
        GiveFocusBack();
    }
    Q_EMIT OpenChanged(false);
}

void CSpecialCharacterKeys::FollowFocus()
{
    QWindow *window = QGuiApplication::focusWindow();
    if (!m_open || window == nullptr || window == m_window->windowHandle()) {
        return;
    }
    while (window->transientParent() != nullptr) {
        window = window->transientParent();
    }
    m_window->StayAbove(*window);
}

void CSpecialCharacterKeys::DockBeside(const QWidget &frame)
{
    m_frame = &frame;
    Dock();
}

void CSpecialCharacterKeys::Dock()
{
    if (m_open && m_frame != nullptr) {
        m_window->DockBeside(*m_frame);
    }
}

bool CSpecialCharacterKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        ChooseWaiting();
        // Consumed where it comes first, before it goes from window to widget to parent: so it is handled once,
        // and a key claimed in its override starts no shortcut.
        if (HandleKey(*static_cast<QKeyEvent *>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::MouseButtonPress:
        if (m_open && watched != m_window->windowHandle() && !m_window->Holds(watched)) {
            ChooseWaiting();
        }
        break;
    case QEvent::FocusOut:
        // The widget that is typed into is not told that the focus went to the window: an edit box in a cell
        // would close.
        if (m_open && watched == m_target
            && (m_window->HasFocus() || m_window->Holds(QApplication::focusWidget()))) {
            m_untold = m_target;
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void CSpecialCharacterKeys::ChooseWaiting()
{
    // What is clicked first is typed first.
    if (m_open) {
        m_window->ChooseWaiting();
    }
}

bool CSpecialCharacterKeys::HandleKey(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    if (modifiers.testFlag(Qt::AltModifier) || QApplication::activePopupWidget() != nullptr) {
        return false;
    }
    const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
    const bool press = event.type() == QEvent::KeyPress;
    if (event.key() == Qt::Key_F9 && !ctrl) {
        if (press && !event.isAutoRepeat()) {
            Toggle();
        }
        return true;
    }
    const std::optional<int> digit = ctrl ? DigitOfKey(event) : std::nullopt;
    if (!digit) {
        return false;
    }
    const QString text = m_characters.DigitText(*digit, modifiers.testFlag(Qt::ShiftModifier));
    QWidget *const target = Target();
    if (press && target != nullptr && !text.isEmpty()) {
        TypeInto(*target, text);
    }
    return true;
}

QWidget *CSpecialCharacterKeys::Target() const
{
    if (QGuiApplication::applicationState() != Qt::ApplicationActive) {
        return nullptr;
    }
    QWidget *const focus = QApplication::focusWidget();
    const bool inWindow = m_window != nullptr && (m_window->HasFocus() || m_window->Holds(focus));
    // A character may also be typed into the edit box of an own one.
    if (!inWindow || qobject_cast<QLineEdit *>(focus) != nullptr) {
        return focus;
    }
    QWidget *const target = m_target;
    return target != nullptr && target->isVisible() ? target : nullptr;
}

void CSpecialCharacterKeys::Send(const QString &text)
{
    if (QWidget *const target = Target()) {
        TypeInto(*target, text);
    } else if (m_window->HasFocus() || !m_sender.Send(text)) {
        QGuiApplication::clipboard()->setText(text);
        m_window->ShowMessage(m_texts.Get(Text::CopiedToClipboard));
    }
}

void CSpecialCharacterKeys::RememberTarget(QWidget *focus)
{
    if (focus != nullptr && (m_window == nullptr || !m_window->Holds(focus))) {
        m_target = focus;
        // It did not get the focus back, so it is told now.
        if (QWidget *const untold = std::exchange(m_untold, nullptr); untold != nullptr && untold != focus) {
            QFocusEvent lost(QEvent::FocusOut, Qt::OtherFocusReason);
            QCoreApplication::sendEvent(untold, &lost);
        }
    }
}

void CSpecialCharacterKeys::RememberOtherProgram(Qt::ApplicationState state)
{
    // On the way from one window of the program to another none may be active for a moment.
    constexpr int AMoment = 500;
    if (state != Qt::ApplicationActive) {
        if (!m_inactive.isValid()) {
            m_inactive.start();
        }
        return;
    }
    const bool wasInactive = m_inactive.isValid() && m_inactive.hasExpired(AMoment);
    m_inactive.invalidate();
    // The user comes from another program straight to the window of special characters.
    if (wasInactive && m_open && QGuiApplication::focusWindow() == m_window->windowHandle()) {
        m_target = nullptr;
    }
}

void CSpecialCharacterKeys::GiveFocusBack()
{
    if (QWidget *const target = m_target; target != nullptr && target->isVisible()) {
        target->activateWindow();
    } else {
        m_sender.ActivateRememberedWindow();
    }
}
