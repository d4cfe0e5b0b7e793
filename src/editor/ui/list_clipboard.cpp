// SPDX-License-Identifier: MIT
#include "editor/ui/list_clipboard.h"

#include "document/win32_doc.h"
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "editor/ui/win32_view.h"
#include "platform/ui/wait_cursor.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

CListClipboard::CListClipboard(CWin32View &view, CWin32Doc &document, const CTexts &texts)
    : m_view(view), m_document(document), m_texts(texts)
{
}

void CListClipboard::Copy(int column)
{
    m_view.EndEditing(true);
    const CWaitCursor wait;
    const std::vector<int> entries = m_view.SelectedEntries();
    if (!entries.empty()) {
        QGuiApplication::clipboard()->setMimeData(
            clipboardDataOf(m_document.List(), entries, column).release());
    }
}

void CListClipboard::Cut()
{
    Copy(AllColumns);
    m_view.DeleteSelection();
}

void CListClipboard::Paste()
{
    m_view.EndEditing(true);
    const CWaitCursor wait;
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr || !mayHoldEntries(*data)) {
        qDebug("BFE! Illegal clipboard format!");
        return;
    }
    const CWordList pasted = entriesFromData(*data);
    const int count = pasted.Count();
    if (count == 0) {
        m_view.UpdateStatusText(m_texts.Get(Text::NothingPasted));
        return;
    }
    const int first = m_view.InsertionPoint();
    m_document.Change([&pasted, first](CWordList &list) { list.InsertAll(pasted, first); });
    m_view.SelectEntryRange(first, first + count - 1);
    m_view.UpdateStatusText(m_texts.Fill(Text::EntriesPasted, {QString::number(count)}));
}

bool CListClipboard::CanPaste()
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && mayHoldEntries(*data);
}
