// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScrollBar>

namespace {

/// A file is opened by the window, and no address is taken for words.
bool MayBeDropped(const QMimeData &data)
{
    return MayHoldEntries(data) && !data.hasUrls() && QApplication::activeModalWidget() == nullptr;
}

}

void CWordListControl::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragFrom) {
        QTableView::mouseMoveEvent(event);
    } else if ((event->pos() - *m_dragFrom).manhattanLength() >= QApplication::startDragDistance()) {
        DragSelection();
    }
}

void CWordListControl::DragSelection()
{
    m_dragFrom.reset();
    m_deselected = QPersistentModelIndex();
    m_pressedFlag = QPersistentModelIndex();
    std::unique_ptr<QMimeData> dragged = m_dragData();
    if (!dragged) {
        return;
    }
    auto *const drag = new QDrag(this); // The toolkit deletes it.
    drag->setMimeData(dragged.release());
    // Other programs get a copy: what they do with it removes nothing here.
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    SetDropRow(NoRow);
}

int CWordListControl::DropRowAt(const QPoint &place) const
{
    const int row = rowAt(place.y());
    if (row < 0) {
        return m_model->rowCount();
    }
    return place.y() < rowViewportPosition(row) + rowHeight(row) / 2 ? row : row + 1;
}

int CWordListControl::DragScrollStep() const
{
    const int step = verticalHeader()->defaultSectionSize();
    return m_dropPlace.y() < step / 2 ? -step : m_dropPlace.y() > viewport()->height() - step / 2 ? step : 0;
}

void CWordListControl::ScrollBelowDrag()
{
    // The toolkit's own scrolling ends while the pointer rests.
    if (m_dropRow == NoRow || DragScrollStep() == 0) {
        m_dragScroll.stop();
    } else {
        verticalScrollBar()->setValue(verticalScrollBar()->value() + DragScrollStep());
        SetDropRow(DropRowAt(m_dropPlace));
    }
}

void CWordListControl::SetDropRow(int row)
{
    if (row != m_dropRow) {
        m_dropRow = row;
        viewport()->update();
    }
}

void CWordListControl::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void CWordListControl::dragMoveEvent(QDragMoveEvent *event)
{
    if (!MayBeDropped(*event->mimeData())) {
        event->ignore();
        return;
    }
    m_dropPlace = event->position().toPoint();
    SetDropRow(DropRowAt(m_dropPlace));
    constexpr int Interval = 60; // In milliseconds.
    if (!m_dragScroll.isActive() && DragScrollStep() != 0) {
        m_dragScroll.start(Interval);
    }
    const bool moves = event->source() == this && !event->modifiers().testFlag(Qt::ControlModifier);
    event->setDropAction(moves ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
}

void CWordListControl::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    SetDropRow(NoRow);
}

void CWordListControl::dropEvent(QDropEvent *event)
{
    SetDropRow(NoRow);
    if (!MayBeDropped(*event->mimeData())) {
        event->ignore();
        return;
    }
    const bool moves = event->source() == this && !event->modifiers().testFlag(Qt::ControlModifier);
    event->setDropAction(moves ? Qt::MoveAction : Qt::CopyAction);
    event->accept();
    EndEditing(true);
    const int row = DropRowAt(event->position().toPoint());
    if (moves) {
        Q_EMIT RowsDropped(row);
    } else {
        Q_EMIT DataDropped(*event->mimeData(), row);
    }
}
