// SPDX-License-Identifier: MIT
#pragma once

#include "tools/import_thread.h"

#include <QAbstractTableModel>

#include <vector>

class CTexts;

/// How far a file of an import has come.
enum class ImportFileStatus { Waiting = 0, Reading = 1, Imported = 2, Ignored = 3, Bad = 4, NotRead = 5 };

/// The files of an import as rows, in the order in which they are read, and what became of each.
class CImportFilesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Folder, Status, ImportedEntries, IgnoredEntries };
    /// An ImportFileStatus, as a number.
    static constexpr int StatusRole = Qt::UserRole;

    explicit CImportFilesModel(const CTexts &texts, QObject *parent = nullptr);

    void Add(const QStringList &paths);
    /// Rows in any order; those that don't exist are skipped.
    void Remove(const std::vector<int> &rows);
    QStringList Paths() const;
    QString NameOf(int file) const;
    /// Why a file was not imported, or what of it was not; empty when there is nothing to say.
    QString Reason(int file) const;

    void FileStarted(int file);
    void FileRead(const FileReadMessage &message);
    /// Those that are left were not read, nor will they be.
    void Ended();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct File
    {
        QString path;
        ImportFileStatus status = ImportFileStatus::Waiting;
        FileImport outcome = {};
    };

    void RowChanged(int row);
    QString CellText(const File &file, int column) const;
    static bool HasLosses(const File &file);
    QString Reason(const File &file) const;

    const CTexts &m_texts;
    QStringList m_headings;
    QStringList m_states;
    std::vector<File> m_files;
};
