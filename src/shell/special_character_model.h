// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

class CSpecialCharacters;
class CTexts;

/// The characters as cells of a table: a grid, or the user's own one below the other with their shortcuts in a
/// second column. A character's row in CSpecialCharacters is called its item here.
class CSpecialCharacterModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Neither is owned.
    CSpecialCharacterModel(CSpecialCharacters &characters, const CTexts &texts, QObject *parent = nullptr);

    bool ShowsOwn() const;
    /// Not the row for adding, which a single click edits.
    bool IsEditedByDoubleClick(int item) const;
    /// How many columns the grid has.
    int GridColumns() const { return m_gridColumns; }
    void SetGridColumns(int columns);
    /// Call it when another set is shown, or the own characters were changed from elsewhere.
    void Reset();
    bool Remove(int item);

    /// -1 for a cell that holds none.
    int Item(const QModelIndex &index) const;
    /// The cell that is chosen and edited for an item.
    QModelIndex Cell(int item) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    QString Shown(int item) const;
    QString Described(int item) const;

    CSpecialCharacters &m_characters;
    const CTexts &m_texts;
    int m_gridColumns = 1;
};
