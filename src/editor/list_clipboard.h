// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class CTexts;
class CWin32Doc;
class IClipboard;
class IEditorView;
class IFormatDialogs;
class IUserPrompt;
class CWordList;
class QMimeData;

/// Copies, cuts and pastes entries by the clipboard.
class CListClipboard
{
public:
    /// Opens a file that was pasted.
    using OpenFile = std::function<void(const QString &path)>;

    /// Nothing is owned.
    CListClipboard(IEditorView &view, CWin32Doc &document, IClipboard &clipboard, const CTexts &texts,
        IUserPrompt &prompt, IFormatDialogs &formatDialogs, OpenFile openFile);

    /// The selected entries, or one field of them. Without any the clipboard stays as it is.
    void Copy(int column);
    /// Copies the selected entries and asks whether to delete them.
    void Cut();
    /// Inserts entries at the insertion point, as one step for undo, selects them, shows the last of
    /// them and tells how many they are.
    /// A file that was copied is opened.
    void Paste();
    /// The same with a text, once the user has chosen how it is read.
    void PasteSpecial();
    /// Inserts the entries of data above a row, as Paste() does.
    void Insert(const QMimeData &data, int row);

    /// Whether the clipboard may hold entries.
    bool CanPaste() const;
    /// Whether it holds a text that is no name of a file.
    bool CanPasteSpecial() const;

private:
    void InsertEntries(const CWordList &entries, int row);

    IEditorView &m_view;
    CWin32Doc &m_document;
    IClipboard &m_clipboard;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    IFormatDialogs &m_formatDialogs;
    OpenFile m_openFile;
};
