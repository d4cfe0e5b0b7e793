// SPDX-License-Identifier: MIT
#include "editor/ui/word_list_control.h"

#include "editor/pending_entries.h"
#include "editor/ui/row_selection_model.h"
#include "editor/ui/word_list_delegate.h"
#include "editor/word_list_model.h"
#include "platform/ui/spoken_text.h"

#include <QAccessible>
#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

CWordListControl::CWordListControl(QWidget *parent)
    : QTableView(parent), m_delegate(new CWordListDelegate(*this)), m_quickEdit([] { return false; })
{
    setItemDelegate(m_delegate);
    connect(
        m_delegate, &CWordListDelegate::EditorOpened, this, [this](QLineEdit *line, const QModelIndex &cell) {
            Q_EMIT EditorOpened(line, cell.row(), m_model->FieldOf(cell.column()));
        });
    connect(m_delegate, &CWordListDelegate::Typed, this, &CWordListControl::Typed);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
        [this](const QPoint &place) { Q_EMIT HeaderMenuRequested(horizontalHeader()->mapToGlobal(place)); });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        Q_EMIT HeaderClicked(m_model->FieldOf(column));
        ShowOrder(); // A click moves the toolkit's arrow.
    });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (!m_layingOut) {
            m_userColumns.insert(column);
        }
    });
    // The program's own scrolling doesn't come this way.
    for (const QScrollBar *const bar : {verticalScrollBar(), horizontalScrollBar()}) {
        connect(bar, &QScrollBar::actionTriggered, this, [this] { EndEditing(true); });
    }
    connect(&m_dragScroll, &QTimer::timeout, this, &CWordListControl::ScrollBelowDrag);
    viewport()->setAcceptDrops(true);
    LayoutRows();
}

void CWordListControl::SetListModel(CWordListModel *model)
{
    m_model = model;
    setModel(model);
    const std::unique_ptr<QItemSelectionModel> toolkits(selectionModel());
    setSelectionModel(new CRowSelectionModel(model, this));
    const auto forget = [this] { m_ranges.reset(); };
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, forget);
    connect(model, &QAbstractItemModel::modelReset, this, forget);
    connect(model, &QAbstractItemModel::modelReset, this, &CWordListControl::ShowOrder);
    connect(model, &QAbstractItemModel::headerDataChanged, this, &CWordListControl::ShowOrder);
    connect(model, &QAbstractItemModel::rowsInserted, this, forget);
    connect(model, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        // Told also when other rows come or go.
        if (m_mark && !IsRowSelected(m_mark->cell.row())) {
            ForgetMark();
        }
    });
    connect(model, &QAbstractItemModel::dataChanged, this,
        [this](const QModelIndex &first, const QModelIndex &last) {
            if (m_mark && first.row() <= m_mark->cell.row() && m_mark->cell.row() <= last.row()) {
                ForgetMark();
            }
        });
}

void CWordListControl::LayoutRows()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
}

void CWordListControl::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        LayoutRows();
    }
}

void CWordListControl::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    // Not for a scroll bar that comes or goes.
    if (width() != m_laidOutWidth) {
        LayoutColumns();
    }
}

int CWordListControl::NumberColumnWidth() const
{
    const QString widest = QString(QString::number(m_model->Rows().EntryCount()).size(), u'8');
    const int content = m_model->Rows().EntryCount() == 0
        ? 0
        : fontMetrics().horizontalAdvance(widest) + fontMetrics().averageCharWidth() * 2;
    return std::max(content, horizontalHeader()->sectionSizeHint(0));
}

void CWordListControl::LayoutColumns()
{
    const int columns = m_model == nullptr ? 0 : m_model->columnCount();
    if (columns == 0) {
        return;
    }
    const QScopedValueRollback layingOut(m_layingOut, true);
    m_laidOutColumns = columns;
    m_laidOutWidth = width();
    constexpr int Margin = 10;
    constexpr int FirstMore = 16; // The first language has the marks of the new-entry row beside its words.
    int available = width() - verticalScrollBar()->sizeHint().width() - Margin;
    if (m_model->FieldOf(0) == CWordListModel::NumberColumn) {
        const int wanted = NumberColumnWidth();
        setColumnWidth(0, m_userColumns.contains(0) ? std::max(wanted, columnWidth(0)) : wanted);
        available -= columnWidth(0);
    }
    std::vector<int> sharing;
    for (int column = m_model->ColumnOf(0); column < columns; ++column) {
        if (m_userColumns.contains(column)) {
            available -= columnWidth(column);
        } else {
            sharing.push_back(column);
        }
    }
    const int least = fontMetrics().averageCharWidth() * 10;
    for (const int column : sharing) {
        const int share = (available - FirstMore) / int(sharing.size());
        setColumnWidth(column, std::max(column == sharing.front() ? share + FirstMore : share, least));
    }
}

void CWordListControl::LayoutChangedColumns()
{
    if (m_model->columnCount() != m_laidOutColumns) {
        m_userColumns.clear();
        LayoutColumns();
    } else {
        WidenNumberColumn();
    }
}

void CWordListControl::WidenNumberColumn()
{
    if (m_model->FieldOf(0) == CWordListModel::NumberColumn && NumberColumnWidth() > columnWidth(0)) {
        const QScopedValueRollback layingOut(m_layingOut, true);
        setColumnWidth(0, NumberColumnWidth());
    }
}

void CWordListControl::ShowOrder()
{
    const std::optional<int> field = m_model->OrderField();
    const bool shown = field && m_model->ColumnOf(*field) < m_model->columnCount();
    horizontalHeader()->setSortIndicatorShown(shown);
    if (shown) {
        horizontalHeader()->setSortIndicator(
            m_model->ColumnOf(*field), m_model->IsAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
}

int CWordListControl::CursorField() const
{
    return currentIndex().isValid() ? m_model->FieldOf(currentIndex().column()) : 0;
}

void CWordListControl::PlaceCursor(const QModelIndex &index, QItemSelectionModel::SelectionFlags select)
{
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(index, select);
    setAutoScroll(true);
}

void CWordListControl::SetCursor(int row, int field)
{
    PlaceCursor(m_model->index(row, m_model->ColumnOf(field)), QItemSelectionModel::NoUpdate);
}

void CWordListControl::SetCursorField(int field)
{
    SetCursor(std::max(currentIndex().row(), 0), field);
}

const std::vector<std::pair<int, int>> &CWordListControl::SelectedRanges() const
{
    if (m_ranges) {
        return *m_ranges;
    }
    std::vector<std::pair<int, int>> ranges;
    // Ranges, not rows one by one: a selection of a hundred thousand rows is a handful of ranges.
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        ranges.emplace_back(range.top(), range.bottom());
    }
    std::ranges::sort(ranges);
    std::vector<std::pair<int, int>> joined;
    for (const auto &[first, last] : ranges) {
        if (!joined.empty() && first <= joined.back().second + 1) {
            joined.back().second = std::max(joined.back().second, last);
        } else {
            joined.emplace_back(first, last);
        }
    }
    return m_ranges.emplace(std::move(joined));
}

void CWordListControl::SelectRanges(const std::vector<std::pair<int, int>> &ranges)
{
    QItemSelection selection;
    const int lastColumn = m_model->columnCount() - 1;
    for (const auto &[first, last] : ranges) {
        selection.append(QItemSelectionRange(m_model->index(first, 0), m_model->index(last, lastColumn)));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void CWordListControl::SelectRow(int row, bool ensureVisible)
{
    if (row == NoRow) {
        clearSelection();
        return;
    }
    const QModelIndex index = m_model->index(row, m_model->ColumnOf(std::max(CursorField(), 0)));
    PlaceCursor(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (ensureVisible && !IsRowVisible(row)) {
        scrollTo(index);
    }
}

std::pair<int, int> CWordListControl::VisibleRows() const
{
    const int last = rowAt(viewport()->height() - 1);
    return {rowAt(0), last < 0 ? m_model->rowCount() - 1 : last};
}

bool CWordListControl::IsRowSelected(int row) const
{
    // The toolkit would look at each range in turn, and there may be thousands.
    const auto &ranges = SelectedRanges();
    const auto after = std::ranges::upper_bound(ranges, row, {}, &std::pair<int, int>::first);
    return after != ranges.begin() && row <= std::prev(after)->second;
}

void CWordListControl::MarkText(int start, int length)
{
    m_mark = TextMark{currentIndex(), start, length};
    viewport()->update();
}

void CWordListControl::ForgetMark()
{
    m_mark.reset();
    viewport()->update();
}

const TextMark *CWordListControl::MarkIn(const QModelIndex &index) const
{
    return m_mark && m_mark->length > 0 && m_mark->cell == index ? &*m_mark : nullptr;
}

void CWordListControl::SetHotRow(int row)
{
    m_hotRow = row;
    viewport()->update();
}

QAccessibleInterface *CWordListControl::CursorCell()
{
    if (!QAccessible::isActive() || !currentIndex().isValid()) {
        return nullptr;
    }
    QAccessibleInterface *const list = QAccessible::queryAccessibleInterface(this);
    QAccessibleTableInterface *const table = list != nullptr ? list->tableInterface() : nullptr;
    return table != nullptr ? table->cellAt(currentIndex().row(), currentIndex().column()) : nullptr;
}

void CWordListControl::TellCursorChanged()
{
    if (QAccessibleInterface *const cell = CursorCell()) {
        QAccessibleEvent name(cell, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&name);
        QAccessible::State flag;
        flag.checked = true;
        QAccessibleStateChangeEvent state(cell, flag);
        QAccessible::updateAccessibility(&state);
    }
}

void CWordListControl::SpeakCursor()
{
    const QString text = currentIndex().data(Qt::AccessibleTextRole).toString();
    if (!QAccessible::isActive() || text.isEmpty()) {
        return;
    }
    if (m_spoken == nullptr) {
        m_spoken = new CSpokenText(window());
    }
    m_spoken->Say(text);
}

void CWordListControl::TellCursorFocused()
{
    QAccessibleInterface *const cell = hasFocus() ? CursorCell() : nullptr;
    if (cell != nullptr) {
        QAccessibleEvent focus(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&focus);
    }
}

QItemSelectionModel::SelectionFlags CWordListControl::SelectionForEdit(int row) const
{
    // A selection of many rows outlives the edit of one of them.
    return selectionModel()->isRowSelected(row, {})
        ? QItemSelectionModel::NoUpdate
        : QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void CWordListControl::EditCell(int row, int field)
{
    const QModelIndex index = m_model->index(row, m_model->ColumnOf(field));
    selectionModel()->setCurrentIndex(index, SelectionForEdit(row));
    scrollTo(index);
    setFocus();
    edit(index, AllEditTriggers, nullptr);
}

void CWordListControl::EditCellBeside(int row, int field)
{
    SetCursor(row, field);
    setFocus();
    edit(currentIndex(), AllEditTriggers, nullptr);
}

std::optional<OpenEdit> CWordListControl::EditedCell() const
{
    return m_delegate->Edited();
}

void CWordListControl::EndEditing(bool commit)
{
    if (IsEditing()) {
        m_delegate->EndEditing(commit);
    }
    TellEnded();
}

void CWordListControl::commitData(QWidget *editor)
{
    // Taken down here and told from the event loop: two questions may follow, and an edit often ends in the
    // middle of a change of the focus.
    m_ended = m_delegate->TakeEdit(editor);
    QMetaObject::invokeMethod(this, &CWordListControl::TellEnded, Qt::QueuedConnection);
}

void CWordListControl::TellEnded()
{
    if (m_ended) {
        const CellEdit edit = *std::exchange(m_ended, std::nullopt);
        Q_EMIT CellEdited(edit);
    }
}
