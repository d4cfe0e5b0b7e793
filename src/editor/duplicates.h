// SPDX-License-Identifier: MIT
#pragma once

#include "model/duplicate_search.h"

class CTexts;
class CWin32Doc;
class IEditorView;
class IUserPrompt;
struct EditorSettings;

/// Finds entries that share a word, and joins them. Each call takes one step for undo at most. One is enough
/// for the whole run of the program: where the search stands belongs to no document.
class CDuplicates
{
public:
    /// Nothing is owned.
    CDuplicates(IEditorView &view, CWin32Doc &document, const EditorSettings &settings, const CTexts &texts,
        IUserPrompt &prompt);

    /// Asks of pair after pair whether to select it, until all have been asked of. The next call goes on where
    /// this one ended.
    void Find();
    /// Joins the selected entries into the first of them.
    void MakeOne();
    /// Asks, where that takes long or can't be undone, whether to join all entries that share a word.
    bool MayMergeAll();
    /// Does so, and tells how many there were.
    void MergeAll();

private:
    IEditorView &m_view;
    CWin32Doc &m_document;
    const EditorSettings &m_settings;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    DuplicatePair m_position; // The pair that was asked of last.
};
