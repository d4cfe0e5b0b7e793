// SPDX-License-Identifier: MIT
// How wide the columns of a table on paper are.
#include "tools/ui/laid_out_text.h"
#include "tools/ui/table_page_measures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace TablePage;

namespace {

/// How much wider than print handwriting is.
constexpr qreal Handwriting = 1.3;
/// Longer texts surely take the whole width; measuring them would take time.
constexpr qsizetype LongText = 500;

/// The printed column that shows how much room the answers of an empty one take.
TableColumn FilledColumn(TableColumn column)
{
    switch (column) {
    case TableColumn::EmptyLanguage1:
        return TableColumn::Language1;
    case TableColumn::EmptyLanguage2:
        return TableColumn::Language2;
    case TableColumn::EmptyNote:
        return TableColumn::Note;
    default:
        return column;
    }
}

}

void CTablePages::Widen(qsizetype column, qreal width)
{
    // The rest of a unit: a text is to find the room that it was measured to take.
    m_widths[size_t(column)] = std::max(m_widths[size_t(column)], std::ceil(width) + 1 + 2 * PadX);
}

void CTablePages::MeasureRows(int count)
{
    const qreal enough = AvailableWidth();
    for (const int end = std::min(m_next + count, m_cells.RowCount()); m_next < end; ++m_next) {
        for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
            if (m_widths[size_t(i)] >= enough) {
                continue;
            }
            const TableColumn column = m_cells.Columns().at(i);
            const TableCell cell = m_cells.Cell(m_next, FilledColumn(column));
            const qsizetype length = std::accumulate(cell.pieces.begin(), cell.pieces.end(), qsizetype(0),
                [](qsizetype sum, const CellPiece &piece) { return sum + piece.text.size(); });
            const auto comments = CommentStyle(m_cells.Options().italicComments);
            const qreal natural = length > LongText
                ? enough
                : CLaidOutText(cell, comments, m_font, CLaidOutText::Unbounded).NaturalWidth();
            Widen(i, IsEmptyColumn(column) ? natural * Handwriting : natural);
        }
    }
    if (m_next == m_cells.RowCount()) {
        DivideWidth();
        m_step = Step::Breaking;
        m_next = 0;
        int lines = 1;
        for (qsizetype i = 0; i < m_cells.Columns().size(); ++i) {
            const qreal width = m_widths[size_t(i)] - 2 * PadX;
            lines = std::max(lines, HeadingText(m_cells.Columns().at(i), width).LineCount());
        }
        m_headingHeight = lines * m_lineHeight + 2 * PadY;
        m_starts.push_back({});
        m_y = Top();
    }
}

void CTablePages::DivideWidth()
{
    const bool full = m_cells.Options().fullTableWidth;
    const qreal available = AvailableWidth();
    if (!full && TableWidth() <= available) {
        MakeRoomForTitle();
        return;
    }
    // Those that need no more than an equal share keep what they need; with the full width numbers alone do.
    std::vector<size_t> sharing(m_widths.size());
    std::iota(sharing.begin(), sharing.end(), size_t(0));
    qreal left = available;
    for (bool found = true; found && !sharing.empty();) {
        const qreal share = left / qreal(sharing.size());
        const auto narrow = std::ranges::find_if(sharing, [&](size_t i) {
            const bool mayKeep = !full || m_cells.Columns().at(qsizetype(i)) == TableColumn::Number;
            return mayKeep && m_widths[i] <= share;
        });
        found = narrow != sharing.end();
        if (found) {
            left -= m_widths[*narrow];
            sharing.erase(narrow);
        }
    }
    for (const size_t i : sharing) {
        m_widths[i] = left / qreal(sharing.size());
    }
}

void CTablePages::MakeRoomForTitle()
{
    if (!m_cells.Options().showTitle) {
        return;
    }
    const qreal title = std::ceil(TitleText(CLaidOutText::Unbounded).NaturalWidth()) + 1;
    const qreal missing = std::min(title, AvailableWidth()) - TableWidth();
    for (qreal &width : m_widths) {
        width += std::max<qreal>(missing, 0) / qreal(m_widths.size());
    }
}
