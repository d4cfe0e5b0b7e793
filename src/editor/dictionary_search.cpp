// SPDX-License-Identifier: MIT
#include "editor/dictionary_search.h"

#include "document/win32_doc.h"
#include "editor/finding.h"
#include "settings/shell_settings.h"

#include <algorithm>

using namespace std::chrono_literals;

CDictionarySearch::CDictionarySearch(
    const CWin32Doc &document, const CFinding &finding, const CTexts &texts, Clock clock)
    : m_document(document), m_finding(finding), m_clock(std::move(clock)), m_results(texts)
{
}

void CDictionarySearch::Typed()
{
    m_due = m_clock() + Delay;
}

void CDictionarySearch::SearchNow()
{
    m_due.reset();
    ListChanged();
}

void CDictionarySearch::ListChanged()
{
    if (m_finding.Settings().dictionary && !m_finding.Text().isEmpty()) {
        m_results.Begin(m_document.List(), m_finding.Search());
        Work();
    } else {
        m_results.Clear(m_document.List());
    }
}

std::optional<std::chrono::milliseconds> CDictionarySearch::Wait() const
{
    if (!m_results.IsDone()) {
        return 0ms;
    }
    return m_due ? std::optional(std::max(*m_due - m_clock(), 0ms)) : std::nullopt;
}

void CDictionarySearch::Work()
{
    constexpr int Piece = 4096; // Entries between two looks at the clock.
    constexpr auto Longest = 10ms;
    const auto start = m_clock();
    while (!m_results.IsDone() && m_clock() - start < Longest) {
        m_results.Search(Piece);
    }
}
