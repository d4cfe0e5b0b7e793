// SPDX-License-Identifier: MIT
#include "editor/word_list_model.h"

#include "document/win32_doc.h"
#include "platform/plain_text.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

CWordListModel::CWordListModel(
    const CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_document(document), m_settings(settings), m_texts(texts)
{
}

int CWordListModel::field(int column) const
{
    return m_settings.showWordNumber ? column - 1 : column;
}

void CWordListModel::reset()
{
    beginResetModel();
    endResetModel();
}

int CWordListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_document.List().Count();
}

int CWordListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2 + int(m_settings.showWordNumber) + int(m_settings.showNotes);
}

QVariant CWordListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int cellField = field(index.column());
    const CWordEntry &entry = m_document.List().Entry(index.row());
    const bool hasFlag = cellField == 0 || cellField == 1;
    switch (role) {
    case Qt::ToolTipRole:
        return cellField == NumberColumn ? QVariant() : ShownAsPlainText(entry.GetField(cellField));
    case Qt::DisplayRole:
        return cellField == NumberColumn ? QString::number(index.row() + 1) : entry.GetField(cellField);
    case FlagRole:
        return hasFlag ? QVariant(entry.GetFlag(cellField)) : QVariant();
    case Qt::AccessibleTextRole:
        if (hasFlag) {
            const QString flag = m_texts.Get(entry.GetFlag(cellField) ? Text::Flagged : Text::NotFlagged);
            return QString(entry.GetField(cellField) + QStringLiteral(", ") + flag);
        }
        return {};
    case Qt::TextAlignmentRole:
        return cellField == NumberColumn ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter)) : QVariant();
    default:
        return {};
    }
}

QVariant CWordListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    const int headerField = field(section);
    if (role == Qt::TextAlignmentRole) {
        return int((headerField == NumberColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (headerField) {
    case NumberColumn:
        return m_texts.Get(Text::NumberColumn);
    case CWordEntry::NoteField:
        return m_texts.Get(Text::Note);
    default:
        return m_document.List().GetLanguage(headerField).trimmed();
    }
}
