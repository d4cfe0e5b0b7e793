// SPDX-License-Identifier: MIT
#include "tools/import_files_model.h"

#include "document/loss_texts.h"
#include "document/read_message.h"
#include "document/text_numbers.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

/// Numbers stand below each other.
int AlignmentOf(int column)
{
    return int(
        Qt::AlignVCenter | (column >= CImportFilesModel::ImportedEntries ? Qt::AlignRight : Qt::AlignLeft));
}

bool IsRead(ImportFileStatus status)
{
    return status == ImportFileStatus::Imported || status == ImportFileStatus::Ignored
        || status == ImportFileStatus::Bad;
}

ImportFileStatus StatusOf(ImportResult result)
{
    switch (result) {
    case ImportResult::Imported:
        return ImportFileStatus::Imported;
    case ImportResult::Ignored:
        return ImportFileStatus::Ignored;
    case ImportResult::Bad:
        break;
    }
    return ImportFileStatus::Bad;
}

}

CImportFilesModel::CImportFilesModel(const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_texts(texts), m_headings(texts.Get(Text::ImportColumns).split(u'\n')),
      m_states(texts.Get(Text::ImportFileStates).split(u'\n'))
{
    m_headings += {texts.Get(Text::ImportedColumn), texts.Get(Text::IgnoredColumn)};
}

void CImportFilesModel::Add(const QStringList &paths)
{
    if (paths.isEmpty()) {
        return;
    }
    const int rows = rowCount();
    beginInsertRows({}, rows, rows + int(paths.size()) - 1);
    for (const QString &path : paths) {
        m_files.push_back({path});
    }
    endInsertRows();
}

void CImportFilesModel::Remove(const std::vector<int> &rows)
{
    std::vector<int> sorted = rows;
    std::erase_if(sorted, [this](int row) { return row < 0 || row >= rowCount(); });
    std::ranges::sort(sorted, std::greater());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    // From the last one up, neighbours at once.
    for (size_t next = 0; next < sorted.size();) {
        const int last = sorted[next];
        int first = last;
        while (++next < sorted.size() && sorted[next] == first - 1) {
            --first;
        }
        beginRemoveRows({}, first, last);
        m_files.erase(m_files.begin() + first, m_files.begin() + last + 1);
        endRemoveRows();
    }
}

QStringList CImportFilesModel::Paths() const
{
    QStringList paths;
    for (const File &file : m_files) {
        paths.append(file.path);
    }
    return paths;
}

QString CImportFilesModel::NameOf(int file) const
{
    return QFileInfo(m_files[size_t(file)].path).fileName();
}

void CImportFilesModel::RowChanged(int row)
{
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void CImportFilesModel::FileStarted(int file)
{
    m_files[size_t(file)].status = ImportFileStatus::Reading;
    RowChanged(file);
}

void CImportFilesModel::FileRead(const FileReadMessage &message)
{
    File &file = m_files[size_t(message.file)];
    file.status = StatusOf(message.outcome.result);
    file.outcome = message.outcome;
    RowChanged(message.file);
}

void CImportFilesModel::Ended()
{
    for (int row = 0; row < rowCount(); ++row) {
        ImportFileStatus &status = m_files[size_t(row)].status;
        if (!IsRead(status)) {
            status = ImportFileStatus::NotRead;
        }
    }
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

int CImportFilesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_files.size());
}

int CImportFilesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : IgnoredEntries + 1;
}

QString CImportFilesModel::CellText(const File &file, int column) const
{
    switch (column) {
    case Name:
        return ShownShort(QFileInfo(file.path).fileName());
    case Folder:
        return ShownShort(QFileInfo(file.path).path());
    case Status: {
        const QString state = m_states.value(int(file.status));
        return HasLosses(file) ? m_texts.Fill(Text::ImportedNotAll, {state}) : state;
    }
    default:
        break;
    }
    if (!IsRead(file.status)) {
        return {};
    }
    return FormatNumber(column == ImportedEntries ? file.outcome.importedEntries : file.outcome.ignoredEntries);
}

bool CImportFilesModel::HasLosses(const File &file)
{
    return file.status == ImportFileStatus::Imported && !file.outcome.losses.empty();
}

QString CImportFilesModel::Reason(const File &file) const
{
    if (!IsRead(file.status)) {
        return {};
    }
    if (file.outcome.fault != FileFault::None) {
        return m_texts.Get(Text::ImportFileFault + int(file.outcome.fault));
    }
    QStringList reasons;
    if (const int message = ReadMessage(file.outcome.read); message != 0) {
        reasons.append(m_texts.Fill(message, {ShownShort(QFileInfo(file.path).fileName())}));
    }
    if (HasLosses(file)) {
        reasons.append(m_texts.Fill(Text::PreviewLosses, {LossesAsText(file.outcome.losses, m_texts, u"; ")}));
    }
    return reasons.join(u'\n');
}

QString CImportFilesModel::Reason(int file) const
{
    return file < 0 || file >= rowCount() ? QString() : Reason(m_files[size_t(file)]);
}

QVariant CImportFilesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const File &file = m_files[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return CellText(file, index.column());
    case Qt::ToolTipRole: {
        const QString reason = Reason(file);
        const QString path = Isolated(ShownShort(file.path));
        return reason.isEmpty() ? path : path + QStringLiteral("\n\n") + reason;
    }
    case Qt::AccessibleDescriptionRole:
        return Reason(file);
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    case StatusRole:
        return int(file.status);
    default:
        return {};
    }
}

QVariant CImportFilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) {
        return AlignmentOf(section);
    }
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_headings.value(section) : QVariant();
}
