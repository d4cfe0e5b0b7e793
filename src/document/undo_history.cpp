// SPDX-License-Identifier: MIT
#include "document/undo_history.h"

#include <algorithm>

CUndoHistory::CUndoHistory() : m_states(1) { }

void CUndoHistory::Snapshot()
{
    if (m_maxStates == 1) {
        return;
    }
    m_states.resize(m_current + 1);
    if (m_states.size() == m_maxStates) {
        m_states.erase(m_states.begin());
        --m_current;
    }
    // A copy of its own first: growing moves the states.
    State copy = m_states[m_current];
    m_states.push_back(std::move(copy));
    ++m_current;
}

void CUndoHistory::Undo()
{
    if (UndoCount() > 0) {
        --m_current;
    }
}

void CUndoHistory::Redo()
{
    if (RedoCount() > 0) {
        ++m_current;
    }
}

void CUndoHistory::SetUndoSize(int steps)
{
    const size_t maxStates = size_t(std::max(steps, 0)) + 1;
    if (maxStates < m_maxStates) {
        // Kept: also where all states would still fit.
        const int insertionPoint = InsertionPoint();
        ResetHistory(std::move(Current()));
        SetInsertionPoint(insertionPoint);
    }
    m_maxStates = maxStates;
}

void CUndoHistory::ResetHistory(CWordList list)
{
    m_states.clear();
    m_states.push_back({.list = std::move(list)});
    m_current = 0;
}

void CUndoHistory::MarkOthersChanged()
{
    for (State &state : m_states) {
        if (&state != &m_states[m_current]) {
            state.list.SetSaved(false);
        }
    }
}
