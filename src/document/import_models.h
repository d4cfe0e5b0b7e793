// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

#include <vector>

class CImportForm;

/// A table of the preview of a separated text, whose cells are made when they are looked at.
class CImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Whether the cell comes to nothing.
    static constexpr int LeftOutRole = Qt::UserRole;

    explicit CImportModel(const CImportForm &form) : m_form(form) { }

    /// Call it after each choice in the form.
    virtual void Renew() = 0;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;

protected:
    const CImportForm &Form() const { return m_form; }
    /// Tells that cells and headings are others; the current one stays where there are as many as before.
    void Resize(int rows, int columns);

private:
    const CImportForm &m_form;
    int m_rows = 0;
    int m_columns = 0;
};

/// The rows of the text as they are in it.
class CImportRowsModel : public CImportModel
{
    Q_OBJECT

public:
    using CImportModel::CImportModel;

    void Renew() override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
};

/// The entries that the rows become.
class CImportEntriesModel : public CImportModel
{
    Q_OBJECT

public:
    using CImportModel::CImportModel;

    void Renew() override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::vector<size_t> m_entryRows; // The rows that become entries.
    std::vector<int> m_fields; // See CImportForm::EntryHeading().
};
