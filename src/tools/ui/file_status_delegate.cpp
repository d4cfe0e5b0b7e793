// SPDX-License-Identifier: MIT
#include "tools/ui/file_status_delegate.h"

#include "tools/import_files_model.h"

CFileStatusDelegate::CFileStatusDelegate(QObject *parent)
    : QStyledItemDelegate(parent), m_imported(QStringLiteral(":/pictures/right.svg")),
      m_ignored(QStringLiteral(":/pictures/ignored.svg")), m_bad(QStringLiteral(":/pictures/wrong.svg"))
{
}

void CFileStatusDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    switch (ImportFileStatus(index.data(CImportFilesModel::StatusRole).toInt())) {
    case ImportFileStatus::Imported:
        option->icon = m_imported;
        break;
    case ImportFileStatus::Ignored:
        option->icon = m_ignored;
        break;
    case ImportFileStatus::Bad:
        option->icon = m_bad;
        break;
    default:
        return;
    }
    option->features |= QStyleOptionViewItem::HasDecoration;
}
