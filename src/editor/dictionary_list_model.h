// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

class CDictionaryListForm;

/// The entries that a form makes of a dictionary, as rows, whose cells are made when they are looked at.
class CDictionaryListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `form` must outlive this.
    explicit CDictionaryListModel(const CDictionaryListForm &form, QObject *parent);

    /// Call it when the form has other entries.
    void Renew();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const CDictionaryListForm &m_form;
    int m_rows = 0;
};
