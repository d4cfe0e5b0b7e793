// SPDX-License-Identifier: MIT
#pragma once

#include "tools/file_search_thread.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <vector>

class CTexts;

/// The files that a search found as rows, in the order in which they were found.
class CFoundFilesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Languages, Author, Comments, Entries, Path, Date };

    explicit CFoundFilesModel(const CTexts &texts, QObject *parent = nullptr);

    void Clear();
    void Add(std::vector<FoundFile> files);
    const FoundFile &File(int row) const { return m_files[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString CellText(const FoundFile &file, int column) const;

    const CTexts &m_texts;
    QStringList m_headings;
    std::vector<FoundFile> m_files;
};

/// The same rows sorted: texts by Swedish rules, the others by what they stand for.
class CFoundFilesOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// The model is not owned.
    explicit CFoundFilesOrder(CFoundFilesModel &model, QObject *parent = nullptr);

    const FoundFile &FileOf(int row) const { return m_model.File(mapToSource(index(row, 0)).row()); }

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    CFoundFilesModel &m_model;
};
