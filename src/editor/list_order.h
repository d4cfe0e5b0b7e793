// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <QObject>

#include <optional>

class CWin32Doc;
struct ListChange;

/// The order in which the list was put last, as long as it holds: a change that leaves each entry in its place
/// keeps it.
class CListOrder : public QObject
{
    Q_OBJECT

public:
    struct Order
    {
        int field = 0;
        SortOptions options;
    };

    /// The document is not owned.
    explicit CListOrder(const CWin32Doc &document);

    /// None while the list stands in no order that is known.
    const std::optional<Order> &Current() const { return m_order; }
    /// Call it after the list was sorted.
    void Set(const Order &order);

Q_SIGNALS:
    void Changed();

private:
    void ListChanged(const ListChange &change);

    const CWin32Doc &m_document;
    std::optional<Order> m_order;
};
