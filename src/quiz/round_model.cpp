// SPDX-License-Identifier: MIT
#include "quiz/round_model.h"

#include "platform/plain_text.h"
#include "quiz/whole_round_form.h"
#include "resources/texts.h"

CRoundModel::CRoundModel(const CWholeRoundForm &form, const CTexts &texts, int markedText, QObject *parent)
    : QAbstractTableModel(parent), m_form(form), m_texts(texts), m_markedText(markedText),
      m_rows(form.rowCount())
{
}

void CRoundModel::refresh()
{
    if (m_rows != m_form.rowCount()) {
        beginResetModel();
        m_rows = m_form.rowCount();
        endResetModel();
    } else if (m_rows > 0) {
        Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
    }
}

int CRoundModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int CRoundModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : CWholeRoundForm::ColumnCount;
}

QVariant CRoundModel::data(const QModelIndex &index, int role) const
{
    // The form may be ahead of what the view was told.
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.row() >= m_form.rowCount()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return Isolated(ShownShort(m_form.cell(index.row(), index.column())));
    case Qt::AccessibleTextRole:
        return readOut(index.row(), index.column());
    case MarkRole:
        return m_form.hasMark(index.row(), index.column());
    default:
        return {};
    }
}

QString CRoundModel::readOut(int row, int column) const
{
    const QString text = ShownShort(m_form.cell(row, column));
    return m_markedText != 0 && m_form.hasMark(row, column) ? m_texts.Fill(m_markedText, {text}) : text;
}

QVariant CRoundModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return ShownShort(m_form.columnTitle(section));
    }
    return orientation == Qt::Horizontal && role == Qt::TextAlignmentRole
        ? QVariant(int(Qt::AlignLeft | Qt::AlignVCenter))
        : QVariant();
}

Qt::ItemFlags CRoundModel::flags(const QModelIndex &index) const
{
    // Rows can be dragged in tables that let them be.
    return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
}
