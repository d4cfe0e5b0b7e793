// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"
#include "settings/tool_settings.h"

#include <QList>

#include <vector>

class CTexts;
class QDate;

/// The columns that a table may have; the numbers are those of the stored form. The empty ones have a heading
/// and cells to write in by hand.
enum class TableColumn {
    Number = 0,
    Language1 = 1,
    Language2 = 2,
    Note = 3,
    EmptyLanguage1 = 4,
    EmptyLanguage2 = 5,
    EmptyNote = 6
};
inline constexpr int TableColumnCount = 7;

/// The codes of a stored text, which has one in each line. What is no code, or stands there a second time, is
/// left out.
QList<TableColumn> ParseColumns(const QString &stored);
QString StoredColumns(const QList<TableColumn> &columns);

inline bool IsEmptyColumn(TableColumn column)
{
    return column >= TableColumn::EmptyLanguage1;
}

/// The numbers of the choices in the settings.
enum class BoldCells { Flagged = 0, Unflagged, All, Number, Language1, Language2, None };
enum class SpecialCells { Flagged = 0, Unflagged, Number, Language1, Language2 };
enum class CommentStyle { Unchanged = 0, Italic, ItalicInBrackets };

/// A piece of what stands in a cell. A comment's brackets are text where comments are left as they are.
struct CellPiece
{
    enum class Kind { Text, LineBreak, CommentBegin, CommentEnd };
    Kind kind = Kind::Text;
    QString text = {};
};

struct TableCell
{
    /// No empty texts; none at all in an empty cell.
    QList<CellPiece> pieces = {};
    bool bold = false;
    /// Has the special colour as its background.
    bool special = false;
};

/// The options in force: a text has none of those that only a page has, and neither is it printed with them.
CreateTableSettings OptionsInForce(const CreateTableSettings &options);

/// What stands in each cell of the table of a list, whatever it is made for. Has its own copies of all that it
/// needs, so it can be handed to another thread.
class CTableCells
{
public:
    /// `selection` holds the entries of a table of selected ones, ascending; without any the table has all.
    CTableCells(CWordList list, std::vector<int> selection, const CreateTableSettings &options,
        const CTexts &texts, QDate today);

    /// Those in force.
    const CreateTableSettings &Options() const { return m_options; }
    const QList<TableColumn> &Columns() const { return m_columns; }
    int RowCount() const;
    const QString &Heading(TableColumn column) const { return m_headings.at(qsizetype(column)); }
    TableCell Cell(int row, TableColumn column) const;
    /// What stands below the table: number of entries, author, comments and date, each on a line that a line
    /// break begins.
    const QString &Summary() const { return m_summary; }

private:
    void AppendTerm(QList<CellPiece> &pieces, const CWordEntry &entry, int language) const;
    void AppendText(QList<CellPiece> &pieces, const QString &text) const;
    bool IsBold(const CWordEntry &entry, TableColumn column) const;
    bool IsSpecial(const CWordEntry &entry, TableColumn column) const;

    CWordList m_list;
    std::vector<int> m_selection;
    CreateTableSettings m_options;
    QList<TableColumn> m_columns;
    QStringList m_headings;
    QString m_summary;
};
