// SPDX-License-Identifier: MIT
#include "editor/list_clipboard.h"

#include "document/win32_doc.h"
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "editor/editor_view.h"
#include "editor/text_numbers.h"
#include "platform/clipboard.h"
#include "resources/texts.h"

#include <QFileInfo>
#include <QMimeData>

CListClipboard::CListClipboard(
    IEditorView &view, CWin32Doc &document, IClipboard &clipboard, const CTexts &texts, OpenFile openFile)
    : m_view(view), m_document(document), m_clipboard(clipboard), m_texts(texts),
      m_openFile(std::move(openFile))
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
    const CWordList pasted = FilesFromData(data).isEmpty() ? EntriesFromData(data) : CWordList();
    const int count = pasted.Count();
    if (count == 0) {
        m_view.UpdateStatusText(m_texts.Get(Text::NothingPasted));
        return;
    }
    const int point = m_view.InsertionPoint();
    const int first = row <= point ? row : row - 1;
    m_document.Change([&pasted, first](CWordList &list) { list.InsertAll(pasted, first); });
    m_view.SetInsertionPoint(row <= point ? point + count : point);
    m_view.SelectEntryRange(first, first + count - 1);
    m_view.ShowEntry(first + count - 1);
    m_view.UpdateStatusText(m_texts.Fill(Text::EntriesPasted, {QString::number(count)}));
}

bool CListClipboard::CanPaste() const
{
    const QMimeData *const data = m_clipboard.Data();
    return data != nullptr && MayHoldEntries(*data);
}
