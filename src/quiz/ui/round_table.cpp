// SPDX-License-Identifier: MIT
#include "quiz/ui/round_table.h"

#include "quiz/round_model.h"

#include <QApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStyledItemDelegate>

namespace {

/// Paints the mark beside the text of the cells that have one.
class CMarkDelegate : public QStyledItemDelegate
{
public:
    CMarkDelegate(const QIcon &mark, QObject *parent) : QStyledItemDelegate(parent), m_mark(mark) { }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(CRoundModel::MarkRole).toBool()) {
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->icon = m_mark;
        }
    }

private:
    QIcon m_mark;
};

}

CRoundTable::CRoundTable(const QString &accessibleName, QWidget *parent) : QTableView(parent)
{
    setObjectName(QStringLiteral("round"));
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_InputMethodEnabled);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel); // A row may be as high as the table.
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    setMinimumHeight(fontMetrics().lineSpacing() * 7);
}

QSize CRoundTable::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().lineSpacing() * 18};
}

void CRoundTable::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    connect(
        selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &current) {
            fitCurrentRow();
            if (current.isValid()) {
                Q_EMIT rowSelected(current.row());
            }
        });
}

void CRoundTable::setMark(const QIcon &mark)
{
    setItemDelegate(new CMarkDelegate(mark, this));
}

void CRoundTable::showRow(int row)
{
    const QModelIndex index = model()->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    fitCurrentRow();
    scrollTo(index);
}

void CRoundTable::fitCurrentRow()
{
    QHeaderView *const rows = verticalHeader();
    const int lowest = rows->defaultSectionSize();
    if (m_fittedRow >= 0 && m_fittedRow < rows->count()) {
        rows->resizeSection(m_fittedRow, lowest);
    }
    m_fittedRow = currentIndex().row();
    if (m_fittedRow >= 0) {
        const int highest = std::max(viewport()->height() - lowest, lowest);
        rows->resizeSection(m_fittedRow, std::clamp(sizeHintForRow(m_fittedRow), lowest, highest));
    }
}

QModelIndex CRoundTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    switch (action) {
    case MoveHome:
        return model()->index(0, 0);
    case MoveEnd:
        return model()->index(model()->rowCount() - 1, 0);
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void CRoundTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        event->ignore(); // The toolkit would copy a text with the marks that are only to be shown.
        return;
    }
    QTableView::keyPressEvent(event);
}

void CRoundTable::keyboardSearch(const QString &search)
{
    const bool goesOn =
        m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    m_typed = goesOn ? m_typed + search : search;
    m_sinceTyped.start();
    const QModelIndexList selected = selectionModel()->selectedRows();
    Q_EMIT searchTyped(m_typed, selected.isEmpty() ? 0 : selected.first().row());
}

void CRoundTable::inputMethodEvent(QInputMethodEvent *event)
{
    // What an input method, a dead key or a compose sequence makes is typing too.
    if (!event->commitString().isEmpty()) {
        keyboardSearch(event->commitString());
    }
}

void CRoundTable::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) {
        Q_EMIT reachedByTab();
    }
}

void CRoundTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fitCurrentRow();
}
