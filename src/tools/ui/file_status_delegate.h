// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

/// Draws the status of a file with its sign in front.
class CFileStatusDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CFileStatusDelegate(QObject *parent = nullptr);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QIcon m_imported;
    QIcon m_ignored;
    QIcon m_bad;
};
