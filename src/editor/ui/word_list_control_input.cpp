// SPDX-License-Identifier: MIT
#include "editor/ui/word_list_control.h"

#include "editor/ui/word_list_delegate.h"
#include "editor/word_list_model.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>

void CWordListControl::keyPressEvent(QKeyEvent *event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        MoveCursorField(event->key() == Qt::Key_Left ? -1 : 1);
        return;
    case Qt::Key_Space:
        if (plain) {
            Q_EMIT FlagKeyPressed();
            SpeakCursor();
        } else {
            QTableView::keyPressEvent(event); // Adds the row of the cursor to the selection, or takes it out.
        }
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (plain && currentIndex().isValid()) {
            EditCell(currentIndex().row(), CursorField());
            return;
        }
        break;
    default:
        break;
    }
    const QString text = event->text();
    const QList<uint> characters = text.toUcs4();
    const bool isText = !characters.isEmpty() && QChar::isPrint(characters.first()) && text.at(0) != u' ';
    const bool isMove = text.isEmpty() || event->matches(QKeySequence::SelectAll);
    // The toolkit would copy the current cell although nothing is selected, and edit at a delete key.
    if (!isText && !isMove) {
        event->ignore();
        return;
    }
    if (isText && m_quickEdit() && currentIndex().isValid()) {
        // Nothing is typed over out of sight.
        scrollTo(currentIndex());
        selectionModel()->select(currentIndex(), SelectionForEdit(currentIndex().row()));
        setEditTriggers(AnyKeyPressed);
    }
    QTableView::keyPressEvent(event);
    setEditTriggers(NoEditTriggers);
}

void CWordListControl::inputMethodEvent(QInputMethodEvent *event)
{
    // What an input method, a dead key or a compose sequence makes is typing too. It begins when the text is
    // ready: the focus that goes to an editor would end the composing.
    const QString text = event->commitString();
    if (text.isEmpty() || !currentIndex().isValid()) {
        return;
    }
    if (!m_quickEdit() && !IsEditing()) {
        keyboardSearch(text);
        return;
    }
    if (!IsEditing()) {
        EditCell(currentIndex().row(), CursorField());
    }
    // Which has the focus only when its window has it.
    if (QWidget *const editor = m_delegate->Editor()) {
        QCoreApplication::sendEvent(editor, event);
    }
}

void CWordListControl::keyboardSearch(const QString &search)
{
    const bool goesOn =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    m_typed = goesOn ? m_typed + search : search;
    m_sinceTyped.start();
    const int row = currentIndex().row();
    Q_EMIT SearchTyped(m_typed, goesOn ? std::max(row, 0) : (row + 1) % m_model->rowCount());
}

QModelIndex CWordListControl::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int column = m_model->ColumnOf(std::max(CursorField(), 0));
    switch (action) {
    case MoveHome:
        return m_model->index(0, column);
    case MoveEnd:
        return m_model->index(m_model->rowCount() - 1, column);
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void CWordListControl::MoveCursorField(int step)
{
    const int field = CursorField() + step;
    const int column = m_model->ColumnOf(field);
    if (!currentIndex().isValid() || field < 0 || column >= m_model->columnCount()) {
        return;
    }
    SetCursorField(field);
    ScrollToCursorField();
}

void CWordListControl::ScrollToCursorField()
{
    const int column = currentIndex().column();
    const int left = columnViewportPosition(column);
    if (left < 0 || left + columnWidth(column) > viewport()->width()) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + left);
    }
}

void CWordListControl::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid() && m_model->FieldOf(current.column()) == CWordListModel::NumberColumn) {
        // The cell cursor never stands on a number.
        const int field = previous.isValid() ? std::max(m_model->FieldOf(previous.column()), 0) : 0;
        selectionModel()->setCurrentIndex(
            m_model->index(current.row(), m_model->ColumnOf(field)), QItemSelectionModel::NoUpdate);
        return;
    }
    // Its colour stands in every selected row.
    if (current.column() != previous.column()) {
        viewport()->update();
    }
    Q_EMIT CursorMoved();
}

QModelIndex CWordListControl::FlagAt(const QPoint &place) const
{
    const QModelIndex index = indexAt(place);
    const QVariant mark = index.data(CWordListModel::MarkRole);
    const bool isFlag = mark.isValid() && mark.toInt() != CWordListModel::NewRow
        && CWordListDelegate::MarkArea(visualRect(index), fontMetrics()).contains(place);
    return isFlag ? index : QModelIndex();
}

void CWordListControl::mousePressEvent(QMouseEvent *event)
{
    m_wasPressed = true;
    m_pressedFlag = event->button() == Qt::LeftButton ? FlagAt(event->pos()) : QModelIndex();
    m_pressedCell = visualRect(m_pressedFlag).topLeft();
    const QModelIndex pressed = indexAt(event->pos());
    const bool toCopy = event->modifiers() == Qt::ControlModifier;
    const bool mayDrag = event->button() == Qt::LeftButton && (toCopy || event->modifiers() == Qt::NoModifier)
        && pressed.isValid() && IsRowSelected(pressed.row());
    m_dragFrom = mayDrag ? std::optional(event->pos()) : std::nullopt;
    m_deselected = mayDrag && toCopy ? pressed : QModelIndex();
    if (!m_deselected.isValid()) {
        QTableView::mousePressEvent(event);
    }
}

void CWordListControl::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragFrom.reset();
    if (m_deselected.isValid()) {
        PlaceCursor(m_deselected, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
        m_deselected = QPersistentModelIndex();
    } else {
        QTableView::mouseReleaseEvent(event);
    }
    const QPersistentModelIndex pressed = std::exchange(m_pressedFlag, {});
    const QModelIndex released = FlagAt(event->pos());
    // The entry that was pressed, also when the end of an edit moved its row in between.
    if (pressed.isValid() && released.isValid() && visualRect(released).topLeft() == m_pressedCell) {
        Q_EMIT FlagClicked(pressed);
    }
}

void CWordListControl::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || !index.isValid()) {
        return;
    }
    if (!m_wasPressed) {
        mousePressEvent(event); // The first click closed a window that stood in front of the list.
    } else if (FlagAt(event->pos()).isValid()) {
        Q_EMIT FlagClicked(index); // Two quick clicks on a flag are two clicks.
    } else {
        Q_EMIT CellDoubleClicked(
            index.row(), m_model->FieldOf(index.column()), event->modifiers().testFlag(Qt::ShiftModifier));
    }
}

void CWordListControl::wheelEvent(QWheelEvent *event)
{
    EndEditing(true);
    QTableView::wheelEvent(event);
}

void CWordListControl::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (currentIndex().isValid()) {
            scrollTo(currentIndex());
            const QRect cell = visualRect(currentIndex());
            Q_EMIT RowMenuRequested(viewport()->mapToGlobal(QPoint(cell.center().x(), cell.bottom())));
        }
    } else if (indexAt(event->pos()).isValid()) {
        Q_EMIT RowMenuRequested(event->globalPos());
    }
}

void CWordListControl::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    viewport()->update();
    // The toolkit tells that the list has the focus, not which of its cells; that comes behind it.
    QMetaObject::invokeMethod(this, &CWordListControl::TellCursorFocused, Qt::QueuedConnection);
}

void CWordListControl::focusOutEvent(QFocusEvent *event)
{
    QTableView::focusOutEvent(event);
    m_wasPressed = false;
    viewport()->update();
}
