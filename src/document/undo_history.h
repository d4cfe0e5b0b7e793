// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <vector>

/// The states of the document's list, oldest first; the current one is shown and edited. States share what did
/// not change between them. Also holds the path of the list's file, which undo does not touch.
class CUndoHistory
{
public:
    /// One empty list, and no undo.
    CUndoHistory();

    CWordList &Current() { return m_states[m_current].list; }
    const CWordList &Current() const { return m_states[m_current].list; }

    /// Where the next entry goes, 0 to the number of entries. A state that is left keeps it, so undo brings it
    /// back.
    int InsertionPoint() const { return m_states[m_current].insertionPoint; }
    void SetInsertionPoint(int entry) { m_states[m_current].insertionPoint = entry; }

    /// Call before a change: keeps the current state for undo and makes a copy of it current. States that were
    /// undone are lost, and so is the oldest where there are as many as are kept. Does nothing while undo is
    /// off.
    void Snapshot();
    void Undo();
    void Redo();
    int UndoCount() const { return int(m_current); }
    int RedoCount() const { return int(m_states.size() - m_current) - 1; }

    /// The number of undo steps, 0 for none. A lower number than before drops all other states.
    void SetUndoSize(int steps);
    /// Starts again from one list.
    void ResetHistory(CWordList list);
    /// Clears the saved mark of every state but the current one: they differ from the file that is written now.
    void MarkOthersChanged();

    const QString &FilePath() const { return m_filePath; }
    void SetFilePath(const QString &path) { m_filePath = path; }

private:
    struct State
    {
        CWordList list = {};
        int insertionPoint = 0;
    };

    std::vector<State> m_states;
    size_t m_current = 0;
    size_t m_maxStates = 1;
    QString m_filePath;
};
