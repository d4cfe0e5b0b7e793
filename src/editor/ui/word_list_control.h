// SPDX-License-Identifier: MIT
#pragma once

#include "editor/row_model.h"

#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QPersistentModelIndex>
#include <QTableView>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

class CWordListDelegate;
class CSpokenText;
class CWordListModel;
class QAccessibleInterface;
class QLineEdit;
class QMimeData;
struct OpenEdit;

/// How editing a cell in place ended, when it was not cancelled.
struct CellEdit
{
    /// The key that ended it, where one did.
    enum class Key { None, Enter, Tab, Backtab };

    int row = 0;
    int field = 0;
    QString text;
    Key key = Key::None;
};

/// A stretch of the text in a cell, in code units.
struct TextMark
{
    QPersistentModelIndex cell;
    int start = 0;
    int length = 0;
};

/// The table of the word list: whole rows are selected, the current column is the cell cursor, rows have one
/// height, columns share the width that the user's own widths leave. Says what the user does; what follows is
/// the view's.
class CWordListControl : public QTableView
{
    Q_OBJECT

public:
    explicit CWordListControl(QWidget *parent = nullptr);

    void SetListModel(CWordListModel *model);
    /// Asked at each key: whether typing starts editing.
    void SetQuickEdit(std::function<bool()> quickEdit) { m_quickEdit = std::move(quickEdit); }
    /// Gives the columns their widths when there are other columns than before: the number column fits its
    /// numbers, the others share what is left. Later ones by the user stay.
    void LayoutChangedColumns();
    /// Makes the number column wide enough for its numbers.
    void WidenNumberColumn();

    /// The field of the cell cursor.
    int CursorField() const;
    void SetCursorField(int field);
    /// Scrolls nothing and selects nothing.
    void SetCursor(int row, int field);
    /// The row of the cell cursor, or NoRow.
    int CursorRow() const { return currentIndex().row(); }

    /// The selected rows as ranges (first, last), ascending.
    const std::vector<std::pair<int, int>> &SelectedRanges() const;
    bool IsRowSelected(int row) const;
    /// Selects exactly these ranges, in one go.
    void SelectRanges(const std::vector<std::pair<int, int>> &ranges);
    /// Selects one row and puts the cell cursor there; none for NoRow.
    void SelectRow(int row, bool ensureVisible);
    /// The first and the last row in sight; one that shows in part counts.
    std::pair<int, int> VisibleRows() const;
    bool IsRowVisible(int row) const { return row >= VisibleRows().first && row <= VisibleRows().second; }

    /// Tells assistive technology that the cell of the cursor has another name or flag.
    void TellCursorChanged();

    /// Lets a stretch of the text in the cell of the cursor stand out, until the selection or the text changes.
    void MarkText(int start, int length);
    /// The stretch that stands out in a cell; null for none.
    const TextMark *MarkIn(const QModelIndex &index) const;

    /// A row that stands out, or NoRow.
    void SetHotRow(int row);
    int HotRow() const { return m_hotRow; }
    /// The list or the edit in one of its cells has the keyboard.
    bool HasKeyboard() const { return hasFocus() || IsEditing(); }

    /// Asked when the selected rows are dragged: what is dragged, or null for nothing.
    void SetDragData(std::function<std::unique_ptr<QMimeData>()> dragData) { m_dragData = std::move(dragData); }

    bool IsEditing() const { return state() == EditingState; }
    void EditCell(int row, int field);
    /// The same, but what is selected stays so and nothing scrolls.
    void EditCellBeside(int row, int field);
    /// What is being edited; none without an open edit.
    std::optional<OpenEdit> EditedCell() const;
    /// Ends editing in place. A committed edit, also one that ended a moment ago, is told by CellEdited()
    /// before this returns.
    void EndEditing(bool commit);

Q_SIGNALS:
    void CellEdited(const CellEdit &edit);
    /// The edit of a cell was cancelled when it held no text.
    void LeftEmpty(int row, int field);
    /// A line was made for editing a cell.
    void EditorOpened(QLineEdit *line, int row, int field);
    /// The text of the cell that is being edited is another.
    void Typed();
    void FlagClicked(const QPersistentModelIndex &cell);
    void FlagKeyPressed();
    void CellDoubleClicked(int row, int field, bool shift);
    void HeaderClicked(int field);
    /// A menu for the selected rows, at a place on the screen.
    void RowMenuRequested(const QPoint &place);
    void HeaderMenuRequested(const QPoint &place);
    /// The cell cursor may be in another column.
    void CursorMoved();
    /// The selected rows were dragged above a row.
    void RowsDropped(int row);
    /// Something that may hold entries was dropped above a row.
    void DataDropped(const QMimeData &data, int row);
    /// Text was typed that begins a term; `row` is where to look first.
    void SearchTyped(const QString &start, int row);

protected:
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void keyboardSearch(const QString &search) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void commitData(QWidget *editor) override;

private:
    void LayoutRows();
    void LayoutColumns();
    /// The heading of the column by which the list is sorted has an arrow.
    void ShowOrder();
    /// The cell of the cursor as assistive technology knows it; null when there is none of either.
    QAccessibleInterface *CursorCell();
    void TellCursorFocused();
    /// Has it read out, since screen readers are silent about the flag of a cell.
    void SpeakCursor();
    void ForgetMark();
    /// Moves the cell cursor without the scrolling that follows its keys.
    void PlaceCursor(const QModelIndex &index, QItemSelectionModel::SelectionFlags select);
    int NumberColumnWidth() const;
    /// The cell whose flag is drawn at a place; none where there is no flag.
    QModelIndex FlagAt(const QPoint &place) const;
    void DragSelection();
    /// The row above which something that is dropped at a place goes.
    int DropRowAt(const QPoint &place) const;
    /// How far the list is to scroll for what is dragged to its edge.
    int DragScrollStep() const;
    void ScrollBelowDrag();
    /// Shows where something would be dropped; nowhere for NoRow.
    void SetDropRow(int row);
    void MoveCursorField(int step);
    void ScrollToCursorField();
    QItemSelectionModel::SelectionFlags SelectionForEdit(int row) const;
    void TellEnded();

    CWordListModel *m_model = nullptr;
    CSpokenText *m_spoken = nullptr; // Once a flag was toggled.
    CWordListDelegate *m_delegate;
    std::function<bool()> m_quickEdit;
    int m_hotRow = NoRow;
    int m_laidOutColumns = 0;
    int m_laidOutWidth = 0;
    bool m_layingOut = false;
    std::set<int> m_userColumns; // Those that the user gave a width.
    mutable std::optional<std::vector<std::pair<int, int>>> m_ranges; // Until the selection changes.
    bool m_wasPressed = false; // Since it has the focus.
    QPersistentModelIndex m_pressedFlag;
    QPoint m_pressedCell; // Where it stood; the list may have moved until the button is released.
    std::function<std::unique_ptr<QMimeData>()> m_dragData;
    std::optional<QPoint> m_dragFrom; // A selected row was pressed there.
    QPersistentModelIndex m_deselected; // Pressed with Ctrl: its row is deselected unless it is dragged.
    int m_dropRow = NoRow;
    QPoint m_dropPlace; // Of the pointer, while something is dragged above the list.
    QTimer m_dragScroll;
    std::optional<TextMark> m_mark;
    std::optional<CellEdit> m_ended;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};
