// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

#include <deque>
#include <optional>

/// A key that was pressed, or a text that an input method made of several.
struct TypedInput
{
    int key = 0; ///< A Qt::Key; 0 for the text of an input method.
    Qt::KeyboardModifiers modifiers = {};
    QString text = {};
    bool repeated = false; ///< The key is held down.
};

/// Decides what becomes of keys while a question interrupts someone who types and may not look at the screen:
/// the question is deaf to them until typing has paused, they are kept meanwhile, and go on where they were
/// meant to go when it is answered. Questions may follow one another; the order of the keys stays.
class CTypeAhead
{
public:
    /// How long it takes to see a question and to stop typing.
    static constexpr std::chrono::milliseconds Pause{400};

    explicit CTypeAhead(Clock clock);

    void QuestionOpened();
    /// Whether the question hears keys from now on, since typing has paused.
    bool TryToHear();
    /// How long typing must pause still until TryToHear() succeeds.
    std::chrono::milliseconds DeafFor() const;
    /// Who looks elsewhere types on after a pause: the question is deaf again.
    void TypedOn() { m_hears = false; }
    void QuestionClosed();

    /// Whether keys are kept: the question is deaf, or there are some to go on with first.
    bool Keeps() const;
    /// Something is typed that nothing comes of yet, like a dead key.
    void NoteTyping();
    /// Takes a key that is to be kept.
    void Keep(TypedInput input);
    /// The key that goes on next; none while a question is open. Done() follows when it went on.
    std::optional<TypedInput> TakeNext();
    void Done() { m_delivering = false; }
    /// Forgets what was kept: there is nowhere to go on.
    void Forget() { m_kept.clear(); }
    /// What was kept, as lines: the keys that end an edit end one.
    QString KeptText() const;
    bool HasKept() const { return !m_kept.empty(); }
    /// Whether something kept is still to go on, or does right now.
    bool GoesOn() const { return m_delivering || HasKept(); }
    bool IsQuestionOpen() const { return m_open; }

private:
    Clock m_clock;
    bool m_open = false;
    bool m_hears = false;
    bool m_delivering = false;
    std::chrono::milliseconds m_lastKey{0}; // Or the opening of the question.
    std::deque<TypedInput> m_kept;
};
