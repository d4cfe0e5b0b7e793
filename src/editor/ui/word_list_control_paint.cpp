// SPDX-License-Identifier: MIT
#include "editor/ui/row_selection_model.h"
#include "editor/ui/word_list_control.h"
#include "editor/ui/word_list_delegate.h"
#include "editor/word_list_model.h"

#include <QPaintEvent>
#include <QPainter>

QRegion CWordListControl::visualRegionForSelection(const QItemSelection &selection) const
{
    // Joining the rows of thousands of ranges takes longer than painting what can be seen.
    return selection.size() > CRowSelectionModel::ManyRanges ? QRegion(viewport()->rect())
                                                             : QTableView::visualRegionForSelection(selection);
}

void CWordListControl::paintEvent(QPaintEvent *event)
{
    // As the toolkit does, but that it asks each of the selected ranges about each cell.
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.palette.setCurrentColorGroup(QPalette::Active);
    const int end = rowAt(event->rect().bottom()) < 0 ? m_model->rowCount() : rowAt(event->rect().bottom()) + 1;
    for (int row = std::max(rowAt(event->rect().top()), 0); row < end; ++row) {
        option.state.setFlag(QStyle::State_Selected, IsRowSelected(row));
        for (int column = 0; column < m_model->columnCount(); ++column) {
            const QModelIndex index = m_model->index(row, column);
            option.rect = visualRect(index);
            if (event->region().intersects(option.rect)) {
                m_delegate->paint(&painter, option, index);
            }
        }
    }
    if (m_dropRow != NoRow) {
        constexpr int Thickness = 3;
        const int last = m_model->rowCount() - 1;
        const int y =
            m_dropRow <= last ? rowViewportPosition(m_dropRow) : rowViewportPosition(last) + rowHeight(last);
        painter.fillRect(0, std::max(y - Thickness / 2, 0), viewport()->width(), Thickness,
            palette().color(QPalette::Active, QPalette::Highlight));
    }
}
