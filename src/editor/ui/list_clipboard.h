// SPDX-License-Identifier: MIT
#pragma once

class CTexts;
class CWin32Doc;
class CWin32View;

/// Copies, cuts and pastes entries by the system's clipboard. Owned by the view that it works on.
class CListClipboard
{
public:
    /// Nothing is owned.
    CListClipboard(CWin32View &view, CWin32Doc &document, const CTexts &texts);

    /// The selected entries, or one field of them. Without any the clipboard stays as it is.
    void Copy(int column);
    /// Copies the selected entries and asks whether to delete them.
    void Cut();
    /// Inserts entries at the insertion point, as one step for undo, selects them and tells how many they are.
    void Paste();

    /// Whether the clipboard may hold entries.
    static bool CanPaste();

private:
    CWin32View &m_view;
    CWin32Doc &m_document;
    const CTexts &m_texts;
};
