// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

class CTexts;
class CWin32Doc;
struct EditorSettings;

/// The document's entries as rows of a table; copies nothing and asks the document for every cell.
/// Shown columns: the number (when the settings say so), language 1, language 2, the note (when the settings
/// say so).
class CWordListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A bool: the flag of a language cell. Cells without a flag give no value.
    static constexpr int FlagRole = Qt::UserRole;

    /// What a field() can be besides the fields of an entry.
    static constexpr int NumberColumn = -1;

    CWordListModel(const CWin32Doc &document, const EditorSettings &settings, const CTexts &texts,
        QObject *parent = nullptr);

    /// The field of an entry that a shown column holds, or NumberColumn.
    int field(int column) const;
    /// Call when another list took the place of the one shown.
    void reset();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    const CWin32Doc &m_document;
    const EditorSettings &m_settings;
    const CTexts &m_texts;
};
