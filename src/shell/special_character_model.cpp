// SPDX-License-Identifier: MIT
#include "shell/special_character_model.h"

#include "platform/character_name.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "shell/special_characters.h"
#include "shell/text_numbers.h"

namespace {

constexpr int ShortcutColumn = 1;
constexpr int OwnColumns = 2;

QString CodePoints(const QString &text)
{
    QStringList codes;
    for (const char32_t character : text.toUcs4()) {
        codes.append(QStringLiteral("U+%1").arg(quint32(character), 4, 16, QChar(u'0')).toUpper());
    }
    return codes.join(u' ');
}

/// The names of the characters of a text, as far as anybody would listen to them.
QString CharacterNames(const QString &text)
{
    constexpr qsizetype MostNames = 4;
    QStringList names;
    for (const char32_t character : text.toUcs4().mid(0, MostNames)) {
        names.append(CharacterName(character));
    }
    return names.join(QStringLiteral(", "));
}

}

CSpecialCharacterModel::CSpecialCharacterModel(
    CSpecialCharacters &characters, const CTexts &texts, QObject *parent)
    : QAbstractTableModel(parent), m_characters(characters), m_texts(texts)
{
}

bool CSpecialCharacterModel::ShowsOwn() const
{
    return m_characters.ShowsOwn();
}

bool CSpecialCharacterModel::IsEditedByDoubleClick(int item) const
{
    return ShowsOwn() && item >= 0 && !m_characters.IsRowForAdding(item);
}

void CSpecialCharacterModel::SetGridColumns(int columns)
{
    beginResetModel();
    m_gridColumns = columns;
    endResetModel();
}

void CSpecialCharacterModel::Reset()
{
    beginResetModel();
    endResetModel();
}

bool CSpecialCharacterModel::Remove(int item)
{
    if (!ShowsOwn() || item < 0 || m_characters.IsRowForAdding(item)) {
        return false;
    }
    beginRemoveRows({}, item, item);
    const bool removed = m_characters.Remove(item);
    endRemoveRows();
    // The characters below it got other shortcuts.
    Q_EMIT dataChanged(index(item, ShortcutColumn), index(rowCount() - 1, ShortcutColumn));
    return removed;
}

int CSpecialCharacterModel::Item(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return -1;
    }
    const int item = ShowsOwn() ? index.row() : index.row() * m_gridColumns + index.column();
    return item < m_characters.Count() ? item : -1;
}

QModelIndex CSpecialCharacterModel::Cell(int item) const
{
    if (item < 0 || item >= m_characters.Count()) {
        return {};
    }
    return ShowsOwn() ? index(item, 0) : index(item / m_gridColumns, item % m_gridColumns);
}

int CSpecialCharacterModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    const int count = m_characters.Count();
    return ShowsOwn() ? count : (count + m_gridColumns - 1) / m_gridColumns;
}

int CSpecialCharacterModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    return ShowsOwn() ? OwnColumns : m_gridColumns;
}

QString CSpecialCharacterModel::Shown(int item) const
{
    if (m_characters.IsRowForAdding(item)) {
        return m_texts.Get(Text::RowForAdding);
    }
    const QString text = m_characters.Text(item);
    // A mark that combines with the letter before it can't be read alone.
    return !text.isEmpty() && text.at(0).isMark() ? QChar(u'\u25CC') + text : Isolated(text);
}

QString CSpecialCharacterModel::Described(int item) const
{
    const QString text = m_characters.Text(item);
    return m_characters.IsRowForAdding(item)
        ? m_texts.Get(Text::AddOwnCharacter)
        : m_texts.Fill(Text::CharacterWithName, {text, CharacterNames(text)});
}

QVariant CSpecialCharacterModel::data(const QModelIndex &index, int role) const
{
    const int item = Item(index);
    if (item < 0) {
        return {};
    }
    if (ShowsOwn() && index.column() == ShortcutColumn) {
        return role == Qt::DisplayRole ? m_characters.Shortcut(item) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return Shown(item);
    case Qt::EditRole:
        return m_characters.Text(item);
    case Qt::AccessibleTextRole:
        return Described(item);
    case Qt::ToolTipRole:
        return m_characters.IsRowForAdding(item)
            ? Described(item)
            : QString(CodePoints(m_characters.Text(item)) + u' ' + CharacterNames(m_characters.Text(item)));
    case Qt::TextAlignmentRole:
        return ShowsOwn() ? QVariant() : QVariant(Qt::AlignCenter);
    default:
        return {};
    }
}

QVariant CSpecialCharacterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || !ShowsOwn()) {
        return {};
    }
    return m_texts.Get(section == ShortcutColumn ? Text::ShortcutColumn : Text::SpecialCharacter);
}

Qt::ItemFlags CSpecialCharacterModel::flags(const QModelIndex &index) const
{
    if (Item(index) < 0) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags usual = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return ShowsOwn() && index.column() == 0 ? usual | Qt::ItemIsEditable : usual;
}

bool CSpecialCharacterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int item = Item(index);
    if (role != Qt::EditRole || item < 0) {
        return false;
    }
    if (!CSpecialCharacters::IsAcceptable(value.toString())) {
        return false;
    }
    const bool adding = m_characters.IsRowForAdding(item);
    if (adding) {
        // The row for adding becomes the new character's; a new row for adding follows it.
        beginInsertRows({}, item + 1, item + 1);
    }
    m_characters.Edit(item, value.toString());
    if (adding) {
        endInsertRows();
    }
    Q_EMIT dataChanged(this->index(item, 0), this->index(item, ShortcutColumn));
    return true;
}
