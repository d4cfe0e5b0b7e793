// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

/// Decides which keys and clicks are not meant for what has just appeared by itself: whoever typed or clicked
/// on had not seen it yet. Times are those of one clock.
class CInputGuard
{
public:
    /// How long it takes to see what appeared and to stop.
    static constexpr std::chrono::milliseconds Pause{400};

    enum class Change {
        NewWindow, ///< Nothing is meant for it.
        NewQuestion ///< In the same window: what is typed may be its answer already.
    };
    /// A key that would answer at once what nobody has read yet is a hasty answer.
    enum class Input { Key, HastyAnswer, Click, ClickOnButton };

    void Appeared(Change change, std::chrono::milliseconds now)
    {
        m_change = change;
        m_since = now;
    }
    bool IsOver(std::chrono::milliseconds now) const { return !m_since || now - *m_since >= Pause; }
    bool Drops(Input input, std::chrono::milliseconds now) const
    {
        return !IsOver(now)
            && (m_change == Change::NewWindow || input == Input::HastyAnswer || input == Input::ClickOnButton);
    }

private:
    Change m_change = Change::NewWindow;
    std::optional<std::chrono::milliseconds> m_since;
};
