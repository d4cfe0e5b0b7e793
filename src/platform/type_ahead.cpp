// SPDX-License-Identifier: MIT
#include "platform/type_ahead.h"

#include <algorithm>
#include <utility>

namespace {

/// A key that only changes others; it goes on with them.
bool IsModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

/// A key held down since before the question repeats what it said once.
bool EndsEdit(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Escape;
}

}

CTypeAhead::CTypeAhead(Clock clock) : m_clock(std::move(clock)) { }

void CTypeAhead::QuestionOpened()
{
    m_open = true;
    m_hears = false;
    m_lastKey = m_clock();
}

bool CTypeAhead::TryToHear()
{
    m_hears = m_hears || DeafFor() == std::chrono::milliseconds::zero();
    return m_hears;
}

std::chrono::milliseconds CTypeAhead::DeafFor() const
{
    return std::max(m_lastKey + Pause - m_clock(), std::chrono::milliseconds::zero());
}

void CTypeAhead::QuestionClosed()
{
    m_open = false;
}

bool CTypeAhead::Keeps() const
{
    return m_open ? !m_hears : HasKept();
}

void CTypeAhead::NoteTyping()
{
    m_lastKey = m_clock();
}

void CTypeAhead::Keep(TypedInput input)
{
    NoteTyping();
    if (!IsModifier(input.key) && !(input.repeated && EndsEdit(input.key))) {
        m_kept.push_back(std::move(input));
    }
}

std::optional<TypedInput> CTypeAhead::TakeNext()
{
    if (m_open || m_kept.empty()) {
        return std::nullopt;
    }
    m_delivering = true;
    TypedInput next = std::move(m_kept.front());
    m_kept.pop_front();
    return next;
}

QString CTypeAhead::KeptText() const
{
    constexpr auto CommandKeys = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
    QString text;
    for (const TypedInput &input : m_kept) {
        if (input.key == Qt::Key_Backspace) {
            text.chop(1);
        } else if (EndsEdit(input.key)) {
            text += u'\n';
        } else if (!(input.modifiers & CommandKeys)) {
            text += input.text;
        }
    }
    return text;
}
