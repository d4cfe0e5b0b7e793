// SPDX-License-Identifier: MIT
#include "editor/list_clipboard.h"

#include "document/format_dialogs.h"
#include "document/loss_texts.h"
#include "document/win32_doc.h"
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "editor/editor_view.h"
#include "editor/inserted_entries.h"
#include "editor/text_numbers.h"
#include "fileformats/import_preview.h"
#include "platform/clipboard.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"

#include <QFileInfo>
#include <QMimeData>

CListClipboard::CListClipboard(IEditorView &view, CWin32Doc &document, IClipboard &clipboard,
    const CTexts &texts, IUserPrompt &prompt, IFormatDialogs &formatDialogs, OpenFile openFile)
    : m_view(view), m_document(document), m_clipboard(clipboard), m_texts(texts), m_prompt(prompt),
      m_formatDialogs(formatDialogs), m_openFile(std::move(openFile))
{
}

void CListClipboard::Copy(int column)
{
    const std::vector<int> entries = m_view.SelectedEntries();
    if (!entries.empty()) {
        m_clipboard.SetData(ClipboardDataOf(m_document.List(), entries, column));
    }
}

void CListClipboard::Cut()
{
    Copy(AllColumns);
    m_view.DeleteSelection();
}

void CListClipboard::Paste()
{
    const QMimeData *const data = m_clipboard.Data();
    if (data == nullptr || !MayHoldEntries(*data)) {
        qDebug("BFE! Illegal clipboard format!");
        return;
    }
    const QStringList files = FilesFromData(*data);
    if (files.size() == 1 && QFileInfo(files.first()).isFile()) {
        m_openFile(files.first());
        return;
    }
    Insert(*data, m_view.InsertionPoint());
}

void CListClipboard::Insert(const QMimeData &data, int row)
{
    // Of several files nothing is read: their names are no terms.
    InsertEntries(FilesFromData(data).isEmpty() ? EntriesFromData(data) : CWordList(), row);
}

void CListClipboard::PasteSpecial()
{
    if (!CanPasteSpecial()) {
        return;
    }
    CImportPreview preview;
    preview.OpenText(TextFromData(*m_clipboard.Data()));
    if (!m_formatDialogs.ChooseImport(preview)) {
        return;
    }
    CWordList pasted;
    const FormatReading reading = preview.Read(pasted);
    InsertEntries(pasted, m_view.InsertionPoint());
    // The preview told of what it saw.
    if (!reading.losses.empty() && reading.losses != preview.Losses()) {
        m_prompt.Tell(m_texts.Prompt(Text::NotAllPasted, {LossesAsText(reading.losses, m_texts, u"\n")}),
            PromptIcon::Warning);
    }
}

void CListClipboard::InsertEntries(const CWordList &entries, int row)
{
    const int count = entries.Count();
    if (count == 0) {
        m_view.UpdateStatusText(m_texts.Get(Text::NothingPasted));
        return;
    }
    ::InsertEntries(entries, row, m_document, m_view);
    m_view.UpdateStatusText(m_texts.Fill(Text::EntriesPasted, {QString::number(count)}));
}

bool CListClipboard::CanPasteSpecial() const
{
    const QMimeData *const data = m_clipboard.Data();
    return data != nullptr && HoldsText(*data);
}

bool CListClipboard::CanPaste() const
{
    const QMimeData *const data = m_clipboard.Data();
    return data != nullptr && MayHoldEntries(*data);
}
