// SPDX-License-Identifier: MIT
#pragma once

#include "document/list_change.h"
#include "editor/find_results.h"
#include "platform/clock.h"

#include <optional>

class CFinding;
class CWin32Doc;

/// Keeps the results of the find window up to date: a while after the last key, at once when the list changes,
/// and only for moments at a time, so that nobody waits.
class CDictionarySearch
{
public:
    /// From the last key to the search.
    static constexpr std::chrono::milliseconds Delay{750};

    /// Nothing is owned.
    CDictionarySearch(const CWin32Doc &document, const CFinding &finding, const CTexts &texts, Clock clock);

    CFindResults &Results() { return m_results; }
    /// What is to be looked for may be another.
    void Typed();
    /// Searches anew, by the settings; there are no results where these don't ask for them.
    void SearchNow();
    /// The same after a change of the list, while what was typed still waits.
    void ListChanged();
    /// How long to wait before Work() is called; nothing when there is nothing to do.
    std::optional<std::chrono::milliseconds> Wait() const;
    /// Whether Work() would begin a new search.
    bool IsDue() const { return m_due.has_value() && *m_due <= m_clock(); }
    /// Goes on for a moment.
    void Work();

private:
    const CWin32Doc &m_document;
    const CFinding &m_finding;
    Clock m_clock;
    CFindResults m_results;
    std::optional<std::chrono::milliseconds> m_due; // When the next search begins.
};
