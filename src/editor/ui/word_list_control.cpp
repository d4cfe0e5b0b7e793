// SPDX-License-Identifier: MIT
#include "editor/ui/word_list_control.h"

#include "editor/ui/word_list_delegate.h"
#include "editor/word_list_model.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

CWordListControl::CWordListControl(QWidget *parent) : QTableView(parent)
{
    setItemDelegate(new CWordListDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);
    layoutRows();
}

void CWordListControl::layoutRows()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
}

void CWordListControl::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        layoutRows();
    }
}

void CWordListControl::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    layoutColumns();
}

QRegion CWordListControl::visualRegionForSelection(const QItemSelection &selection) const
{
    // Joining the rows of thousands of ranges takes longer than painting what can be seen.
    constexpr int Many = 50;
    return selection.size() > Many ? QRegion(viewport()->rect())
                                   : QTableView::visualRegionForSelection(selection);
}

void CWordListControl::layoutColumns()
{
    const auto *const list = qobject_cast<const CWordListModel *>(model());
    const int columns = list == nullptr ? 0 : list->columnCount();
    if (columns == 0) {
        return;
    }
    int available = viewport()->width();
    int first = 0;
    if (list->field(0) == CWordListModel::NumberColumn) {
        const QString widest = QString(QString::number(list->rowCount()).size(), u'8');
        const int width =
            std::max(fontMetrics().horizontalAdvance(widest) + fontMetrics().averageCharWidth() * 2,
                horizontalHeader()->sectionSizeHint(0));
        setColumnWidth(0, width);
        available -= width;
        first = 1;
    }
    const int shares = columns - first;
    for (int column = first; column < columns; ++column) {
        setColumnWidth(column, available / shares + (column == first ? available % shares : 0));
    }
}
