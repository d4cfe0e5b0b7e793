// SPDX-License-Identifier: MIT
#include "tools/table_cells.h"

#include "platform/local_formats.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"

#include <QDate>

namespace {

/// The language that a cell's flag belongs to; none for columns without one.
std::optional<int> LanguageOf(TableColumn column)
{
    switch (column) {
    case TableColumn::Language1:
        return 0;
    case TableColumn::Language2:
        return 1;
    default:
        return std::nullopt;
    }
}

/// Texts that follow each other are one piece.
void AppendPlain(QList<CellPiece> &pieces, QStringView text)
{
    if (text.isEmpty()) {
        return;
    }
    if (!pieces.isEmpty() && pieces.last().kind == CellPiece::Kind::Text) {
        pieces.last().text += text;
    } else {
        pieces.append({CellPiece::Kind::Text, text.toString()});
    }
}

}

QList<TableColumn> ParseColumns(const QString &stored)
{
    QList<TableColumn> columns;
    for (const QString &line : stored.split(u'\n')) {
        bool isNumber = false;
        const int code = line.trimmed().toInt(&isNumber);
        const auto column = TableColumn(code);
        if (isNumber && code >= 0 && code < TableColumnCount && !columns.contains(column)) {
            columns.append(column);
        }
    }
    return columns;
}

QString StoredColumns(const QList<TableColumn> &columns)
{
    QStringList codes;
    for (const TableColumn column : columns) {
        codes.append(QString::number(int(column)));
    }
    return codes.join(u'\n');
}

CreateTableSettings OptionsInForce(const CreateTableSettings &options)
{
    CreateTableSettings inForce = options;
    if (!options.htmlFormat) {
        const CreateTableSettings factory;
        inForce.makeBold = int(BoldCells::None);
        inForce.specialDoChange = false;
        inForce.border = 0;
        inForce.fullTableWidth = false;
        inForce.setTableBackground = false;
        inForce.colorText = factory.colorText;
        inForce.colorBackground = factory.colorBackground;
    }
    return inForce;
}

CTableCells::CTableCells(CWordList list, std::vector<int> selection, const CreateTableSettings &options,
    const CTexts &texts, QDate today)
    : m_list(std::move(list)), m_options(OptionsInForce(options)), m_columns(ParseColumns(options.columns))
{
    if (options.useSelected != 0) {
        m_selection = std::move(selection);
    }
    const QString note = texts.Get(Text::Note);
    m_headings = {texts.Get(Text::NumberColumn), m_list.GetLanguage(0), m_list.GetLanguage(1), note,
        m_list.GetLanguage(0), m_list.GetLanguage(1), note};
    m_summary = texts.Fill(Text::TableSummary,
        {QString::number(m_list.Count()), m_list.GetAuthor(), m_list.GetComments(), FormatShortDate(today)},
        FilledFor::Storage);
}

int CTableCells::RowCount() const
{
    return m_selection.empty() ? m_list.Count() : int(m_selection.size());
}

TableCell CTableCells::Cell(int row, TableColumn column) const
{
    const int index = m_selection.empty() ? row : m_selection[size_t(row)];
    const CWordEntry &entry = m_list.Entry(index);
    TableCell cell;
    switch (column) {
    case TableColumn::Number:
        AppendPlain(cell.pieces, QString::number(index + 1));
        break;
    case TableColumn::Language1:
    case TableColumn::Language2:
        AppendTerm(cell.pieces, entry, *LanguageOf(column));
        break;
    case TableColumn::Note:
        AppendText(cell.pieces, entry.GetNote());
        break;
    default:
        break;
    }
    cell.bold = IsBold(entry, column);
    cell.special = m_options.specialDoChange && IsSpecial(entry, column);
    return cell;
}

void CTableCells::AppendTerm(QList<CellPiece> &pieces, const CWordEntry &entry, int language) const
{
    QString term = m_options.deleteComments ? entry.GetCleanTerm(language) : entry.GetText(language);
    if (!m_options.doReplaceAsterisc) {
        AppendText(pieces, term);
        return;
    }
    // Only a line break that the replacement asks for is one, not what stands in a word.
    const QStringList lines = m_options.replaceAsterisc.split(QStringLiteral("<br>"));
    const QStringList alternatives = term.split(QStringLiteral(" * "));
    for (qsizetype i = 0; i < alternatives.size(); ++i) {
        for (qsizetype line = 0; i > 0 && line < lines.size(); ++line) {
            if (line > 0) {
                pieces.append({CellPiece::Kind::LineBreak});
            }
            AppendText(pieces, lines.at(line));
        }
        AppendText(pieces, alternatives.at(i));
    }
}

void CTableCells::AppendText(QList<CellPiece> &pieces, const QString &text) const
{
    if (CommentStyle(m_options.italicComments) == CommentStyle::Unchanged) {
        AppendPlain(pieces, text);
        return;
    }
    qsizetype done = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'[' || text.at(i) == u']') {
            AppendPlain(pieces, QStringView(text).sliced(done, i - done));
            pieces.append({text.at(i) == u'[' ? CellPiece::Kind::CommentBegin : CellPiece::Kind::CommentEnd});
            done = i + 1;
        }
    }
    AppendPlain(pieces, QStringView(text).sliced(done));
}

bool CTableCells::IsBold(const CWordEntry &entry, TableColumn column) const
{
    const std::optional<int> language = LanguageOf(column);
    switch (BoldCells(m_options.makeBold)) {
    case BoldCells::Flagged:
        return language && entry.GetFlag(*language);
    case BoldCells::Unflagged:
        return language && !entry.GetFlag(*language);
    case BoldCells::All:
        return true;
    case BoldCells::Number:
        return column == TableColumn::Number;
    case BoldCells::Language1:
        return column == TableColumn::Language1;
    case BoldCells::Language2:
        return column == TableColumn::Language2;
    default:
        return false;
    }
}

bool CTableCells::IsSpecial(const CWordEntry &entry, TableColumn column) const
{
    const std::optional<int> language = LanguageOf(column);
    switch (SpecialCells(m_options.specialChange)) {
    case SpecialCells::Flagged:
        return language && entry.GetFlag(*language);
    case SpecialCells::Unflagged:
        return language && !entry.GetFlag(*language);
    case SpecialCells::Number:
        return column == TableColumn::Number;
    case SpecialCells::Language1:
        return column == TableColumn::Language1;
    case SpecialCells::Language2:
        return column == TableColumn::Language2;
    default:
        return false;
    }
}
