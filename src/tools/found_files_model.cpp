// SPDX-License-Identifier: MIT
#include "tools/found_files_model.h"

#include "platform/collation.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

/// Numbers stand below each other.
int AlignmentOf(int column)
{
    return int(Qt::AlignVCenter | (column == CFoundFilesModel::Entries ? Qt::AlignRight : Qt::AlignLeft));
}

}

CFoundFilesModel::CFoundFilesModel(const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_texts(texts), m_headings(texts.Get(Text::SearchColumns).split(u'\n'))
{
}

void CFoundFilesModel::Clear()
{
    beginResetModel();
    m_files.clear();
    endResetModel();
}

void CFoundFilesModel::Add(std::vector<FoundFile> files)
{
    if (files.empty()) {
        return;
    }
    const int rows = rowCount();
    beginInsertRows({}, rows, rows + int(files.size()) - 1);
    m_files.insert(m_files.end(), std::make_move_iterator(files.begin()), std::make_move_iterator(files.end()));
    endInsertRows();
}

int CFoundFilesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_files.size());
}

int CFoundFilesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Date + 1;
}

QString CFoundFilesModel::CellText(const FoundFile &file, int column) const
{
    switch (column) {
    case Name:
        return ShownShort(QFileInfo(file.path).fileName());
    case Languages:
        return m_texts.Fill(Text::SearchLanguages, {file.summary.languages[0], file.summary.languages[1]});
    case Author:
        return file.summary.author;
    case Comments:
        return file.summary.comments;
    case Entries:
        return FormatNumber(file.summary.entries);
    case Path:
        return ShownShort(file.path);
    default:
        return FormatShortDate(QDateTime::fromMSecsSinceEpoch(file.modified).date());
    }
}

QVariant CFoundFilesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return CellText(File(index.row()), index.column());
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    default:
        return {};
    }
}

QVariant CFoundFilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
        return AlignmentOf(section);
    }
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_headings.value(section) : QVariant();
}

CFoundFilesOrder::CFoundFilesOrder(CFoundFilesModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
    setSourceModel(&model);
}

bool CFoundFilesOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const FoundFile &a = m_model.File(left.row());
    const FoundFile &b = m_model.File(right.row());
    const auto compare = [](const QString &first, const QString &second) {
        return CSwedishCollator::ForThisThread().Compare(first, second);
    };
    switch (left.column()) {
    case CFoundFilesModel::Name:
        return compare(QFileInfo(a.path).fileName(), QFileInfo(b.path).fileName()) < 0;
    case CFoundFilesModel::Languages: {
        const int order = compare(a.summary.languages[0], b.summary.languages[0]);
        return (order != 0 ? order : compare(a.summary.languages[1], b.summary.languages[1])) < 0;
    }
    case CFoundFilesModel::Author:
        return compare(a.summary.author, b.summary.author) < 0;
    case CFoundFilesModel::Comments:
        return compare(a.summary.comments, b.summary.comments) < 0;
    case CFoundFilesModel::Entries:
        return a.summary.entries < b.summary.entries;
    case CFoundFilesModel::Path:
        return compare(a.path, b.path) < 0;
    default:
        return a.modified < b.modified;
    }
}
