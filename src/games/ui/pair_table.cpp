// SPDX-License-Identifier: MIT
#include "games/ui/pair_table.h"

#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

#include <utility>

CPairTable::CPairTable(const QString &accessibleName, QWidget *parent) : CRoundTable(accessibleName, parent)
{
    connect(&m_dragScroll, &QTimer::timeout, this, &CPairTable::scrollBelowDrag);
}

void CPairTable::setMayMove(bool mayMove)
{
    m_mayMove = mayMove;
    setDragEnabled(mayMove);
    setAcceptDrops(mayMove);
    setDropIndicatorShown(false); // The whole row is marked.
}

void CPairTable::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    if (m_mayMove && modifiers == Qt::ShiftModifier && (key == Qt::Key_Up || key == Qt::Key_Down)) {
        Q_EMIT moveRequested(key == Qt::Key_Up ? -1 : 1);
    } else if (m_mayMove && modifiers == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        Q_EMIT enterPressed();
    } else {
        CRoundTable::keyPressEvent(event);
    }
}

void CPairTable::startDrag(Qt::DropActions /*supportedActions*/)
{
    m_draggedRow = currentIndex().row();
    const QRect row(0, rowViewportPosition(m_draggedRow), viewport()->width(), rowHeight(m_draggedRow));
    auto *const drag = new QDrag(this); // The toolkit deletes it.
    drag->setMimeData(new QMimeData); // Nothing that another window could use.
    drag->setPixmap(viewport()->grab(row));
    drag->setHotSpot(viewport()->mapFromGlobal(QCursor::pos()) - row.topLeft());
    constexpr int Interval = 60; // In milliseconds.
    m_dragScroll.start(Interval);
    drag->exec(Qt::MoveAction);
    m_dragScroll.stop();
    m_draggedRow = -1;
    setDropRow(-1);
}

void CPairTable::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void CPairTable::dragMoveEvent(QDragMoveEvent *event)
{
    setDropRow(m_draggedRow >= 0 ? rowAt(event->position().toPoint().y()) : -1);
    event->setDropAction(Qt::MoveAction);
    event->setAccepted(m_draggedRow >= 0 && m_dropRow >= 0);
}

void CPairTable::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    setDropRow(-1);
}

void CPairTable::scrollBelowDrag()
{
    // The toolkit's own scrolling ends while the pointer rests, and where it leaves the table.
    const QPoint place = viewport()->mapFromGlobal(QCursor::pos());
    const int step = verticalHeader()->defaultSectionSize();
    const bool isAbove = place.y() < step / 2;
    const bool isBelow = place.y() > viewport()->height() - step / 2;
    if (isAbove == isBelow || place.x() < 0 || place.x() >= viewport()->width()) {
        return;
    }
    verticalScrollBar()->setValue(verticalScrollBar()->value() + (isAbove ? -step : step));
    if (m_dropRow >= 0) {
        setDropRow(rowAt(place.y()));
    }
}

void CPairTable::dropEvent(QDropEvent *event)
{
    setDropRow(-1);
    const int from = std::exchange(m_draggedRow, -1);
    const int to = rowAt(event->position().toPoint().y());
    event->setAccepted(from >= 0 && to >= 0);
    if (event->isAccepted()) {
        Q_EMIT exchangeRequested(from, to);
    }
}

void CPairTable::setDropRow(int row)
{
    if (row != m_dropRow) {
        m_dropRow = row;
        viewport()->update();
    }
}

void CPairTable::paintEvent(QPaintEvent *event)
{
    CRoundTable::paintEvent(event);
    if (m_dropRow >= 0) {
        constexpr int Thickness = 3;
        QPainter painter(viewport());
        painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), Thickness));
        const QRect row(0, rowViewportPosition(m_dropRow), viewport()->width(), rowHeight(m_dropRow));
        painter.drawRect(row.adjusted(Thickness / 2, Thickness / 2, -Thickness + 1, -Thickness + 1));
    }
}
