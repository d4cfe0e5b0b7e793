// SPDX-License-Identifier: MIT
#include "editor/dictionary_list_model.h"

#include "editor/dictionary_list_form.h"
#include "platform/plain_text.h"

CDictionaryListModel::CDictionaryListModel(const CDictionaryListForm &form, QObject *parent)
    : QAbstractTableModel(parent), m_form(form)
{
}

void CDictionaryListModel::Renew()
{
    beginResetModel();
    m_rows = m_form.Entries().Count();
    endResetModel();
}

int CDictionaryListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int CDictionaryListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : CWordEntry::LanguageCount;
}

QVariant CDictionaryListModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    return index.isValid() && isText ? ShownShort(m_form.Entries().Entry(index.row()).GetText(index.column()))
                                     : QVariant();
}

QVariant CDictionaryListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
        ? ShownShort(OneLine(m_form.LanguageOf(section)))
        : QVariant();
}
