// SPDX-License-Identifier: MIT
#include "editor/list_order.h"

#include "document/win32_doc.h"

CListOrder::CListOrder(const CWin32Doc &document) : m_document(document)
{
    connect(&document, &CWin32Doc::Changed, this, &CListOrder::ListChanged);
}

void CListOrder::Set(const Order &order)
{
    m_order = order;
    Q_EMIT Changed();
}

void CListOrder::ListChanged(const ListChange &change)
{
    if (!m_order) {
        return;
    }
    const ListDifference &difference = change.difference;
    // Only the entries that are new in their place, each with its neighbours, may stand against it.
    const bool holds = !change.replaced
        && m_document.List().IsSorted(
            m_order->field, m_order->options, difference.first - 1, difference.first + difference.inserted);
    if (!holds) {
        m_order.reset();
        Q_EMIT Changed();
    }
}
