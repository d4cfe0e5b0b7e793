// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

class CTexts;
class CWholeRoundForm;

/// The rows of a form that shows a whole round. Keeps nothing: a cell is made when it is looked at.
class CRoundModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Whether a mark stands beside the text.
    static constexpr int MarkRole = Qt::UserRole;

    /// The form must live as long as the model. `markedText` tells of a cell with a mark, with a placeholder
    /// for what is read out otherwise; 0 where the texts tell it themselves.
    CRoundModel(const CWholeRoundForm &form, const CTexts &texts, int markedText, QObject *parent = nullptr);

    /// Call when rows of the form are others.
    void refresh();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString readOut(int row, int column) const;

    const CWholeRoundForm &m_form;
    const CTexts &m_texts;
    int m_markedText;
    int m_rows;
};
