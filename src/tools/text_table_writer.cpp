// SPDX-License-Identifier: MIT
#include "tools/table_writer.h"

namespace {

class CTextTableWriter : public ITableWriter
{
public:
    explicit CTextTableWriter(CTableCells cells) : m_cells(std::move(cells)) { }

    int RowCount() const override { return m_cells.RowCount(); }
    QString Head() const override;
    QString Row(int row) const override;
    QString Foot() const override { return m_cells.Summary(); }

private:
    QString CellText(const TableCell &cell) const;
    static QString Line(const QStringList &cells) { return cells.join(u'\t') + QStringLiteral("\r\n"); }
    /// What divides cells and rows must not stand in one.
    static QString Flat(QString text);

    CTableCells m_cells;
};

QString CTextTableWriter::Flat(QString text)
{
    for (QChar &character : text) {
        if (character == u'\t' || character == u'\r' || character == u'\n') {
            character = u' ';
        }
    }
    return text;
}

QString CTextTableWriter::Head() const
{
    QString head;
    if (m_cells.Options().showTitle) {
        head = Flat(m_cells.Options().title) + QStringLiteral("\r\n\r\n");
    }
    QStringList headings;
    for (const TableColumn column : m_cells.Columns()) {
        headings.append(Flat(m_cells.Heading(column)));
    }
    return head + Line(headings);
}

QString CTextTableWriter::Row(int row) const
{
    QStringList cells;
    for (const TableColumn column : m_cells.Columns()) {
        cells.append(Flat(CellText(m_cells.Cell(row, column))));
    }
    return Line(cells);
}

QString CTextTableWriter::CellText(const TableCell &cell) const
{
    const bool inBrackets = CommentStyle(m_cells.Options().italicComments) == CommentStyle::ItalicInBrackets;
    QString text;
    for (const CellPiece &piece : cell.pieces) {
        switch (piece.kind) {
        case CellPiece::Kind::Text:
            text += piece.text;
            break;
        case CellPiece::Kind::LineBreak:
            text += QStringLiteral("<br>"); // As it was typed: a line of text is a row.
            break;
        case CellPiece::Kind::CommentBegin:
            text += inBrackets ? u'(' : u'[';
            break;
        case CellPiece::Kind::CommentEnd:
            text += inBrackets ? u')' : u']';
            break;
        }
    }
    return text;
}

}

std::unique_ptr<ITableWriter> MakeTextTableWriter(CTableCells cells)
{
    return std::make_unique<CTextTableWriter>(std::move(cells));
}
