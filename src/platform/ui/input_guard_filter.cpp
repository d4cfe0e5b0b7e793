// SPDX-License-Identifier: MIT
#include "platform/ui/input_guard_filter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

using Change = CInputGuard::Change;
using Input = CInputGuard::Input;

CInputGuardFilter::CInputGuardFilter(Clock clock, QObject *parent) : QObject(parent), m_clock(std::move(clock))
{
}

void CInputGuardFilter::WindowOpens(QWidget &window)
{
    m_window = &window;
    m_waitsForPaint = true;
    Start(Change::NewWindow);
}

void CInputGuardFilter::NextDialogOpens()
{
    m_waitsForDialog = true;
    qApp->installEventFilter(this);
}

void CInputGuardFilter::QuestionAppeared(QWidget &window, std::function<bool(const QKeyEvent &)> isHastyAnswer)
{
    m_window = &window;
    m_isHastyAnswer = std::move(isHastyAnswer);
    Start(Change::NewQuestion);
}

void CInputGuardFilter::Start(Change change)
{
    m_guard.Appeared(change, m_clock());
    qApp->installEventFilter(this);
}

Input CInputGuardFilter::KeyInput(const QKeyEvent &key) const
{
    return m_isHastyAnswer && m_isHastyAnswer(key) ? Input::HastyAnswer : Input::Key;
}

bool CInputGuardFilter::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (widget == nullptr) {
        return false;
    }
    if (m_waitsForDialog && event->type() == QEvent::Show && qobject_cast<QDialog *>(widget) != nullptr) {
        m_waitsForDialog = false;
        WindowOpens(*widget);
        return false;
    }
    if (m_window.isNull() || widget->window() != m_window) {
        return false;
    }
    std::optional<Input> input;
    switch (event->type()) {
    case QEvent::Paint:
        if (m_waitsForPaint && widget == m_window) {
            m_waitsForPaint = false;
            Start(Change::NewWindow);
        }
        return false;
    case QEvent::ShortcutOverride: // Accepted, it keeps the key from shortcuts; it comes as a press then.
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        input = KeyInput(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        input = qobject_cast<QAbstractButton *>(widget) != nullptr ? Input::ClickOnButton : Input::Click;
        break;
    default:
        return false;
    }
    const auto now = m_clock();
    if (m_guard.IsOver(now)) {
        qApp->removeEventFilter(this);
        return false;
    }
    const bool dropped = m_guard.Drops(*input, now);
    if (dropped) {
        event->accept();
    }
    return dropped;
}
