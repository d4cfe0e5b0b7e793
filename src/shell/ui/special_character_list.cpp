// SPDX-License-Identifier: MIT
#include "shell/ui/special_character_list.h"

#include "resources/texts.h"
#include "shell/special_character_model.h"
#include "shell/text_numbers.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace {

/// Names the edit box of an own character.
class CNamingDelegate : public QStyledItemDelegate
{
public:
    CNamingDelegate(const QString &name, QObject *parent) : QStyledItemDelegate(parent), m_name(name) { }

    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const override
    {
        auto *editor = new QLineEdit(parent);
        editor->setObjectName(QStringLiteral("ownCharacter"));
        editor->setAccessibleName(m_name);
        editor->setFrame(false);
        return editor;
    }

private:
    QString m_name;
};

}

CSpecialCharacterList::CSpecialCharacterList(
    CSpecialCharacterModel &model, const CTexts &texts, QWidget *parent)
    : QTableView(parent), m_model(model)
{
    setModel(&model);
    setItemDelegate(new CNamingDelegate(texts.Get(Text::SpecialCharacter), this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    m_doubleClick.setSingleShot(true);
    m_doubleClick.callOnTimeout(
        this, [this] { Q_EMIT Chosen(m_model.Item(std::exchange(m_waiting, {})), m_waitingModifiers); });
    EnlargeFont();
    LayOut();
}

void CSpecialCharacterList::EnlargeFont()
{
    // Accents and hooks are hard to tell apart in the size of other texts.
    QFont text = font();
    const qreal size = text.pointSizeF();
    text.setPointSizeF(size * 1.4);
    setFont(text);
    text.setPointSizeF(size);
    horizontalHeader()->setFont(text);
}

int CSpecialCharacterList::CellSize() const
{
    return fontMetrics().height() + fontMetrics().height() / 3;
}

int CSpecialCharacterList::RoomForColumns() const
{
    // As if the scroll bar stood there: it must not come and go with the number of columns.
    return width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
}

void CSpecialCharacterList::LayOut()
{
    if (m_layingOut) {
        return;
    }
    m_layingOut = true;
    const bool own = m_model.ShowsOwn();
    const int columns = std::max(1, RoomForColumns() / CellSize());
    if (!own && columns != m_model.GridColumns()) {
        const int current = CurrentItem();
        m_model.SetGridColumns(columns);
        SetCurrentItem(current);
    }
    setSelectionBehavior(own ? SelectRows : SelectItems);
    setShowGrid(!own);
    horizontalHeader()->setVisible(own);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(CellSize());
    m_layingOut = false;
}

QSize CSpecialCharacterList::sizeHint() const
{
    const int border = 2 * frameWidth();
    return {CellSize() * 10 + border + verticalScrollBar()->sizeHint().width(), CellSize() * 12 + border};
}

int CSpecialCharacterList::CurrentItem() const
{
    return m_model.Item(currentIndex());
}

void CSpecialCharacterList::SetCurrentItem(int item)
{
    const QModelIndex cell = m_model.Cell(item);
    setCurrentIndex(cell);
    if (cell.isValid()) {
        scrollTo(cell);
    }
}

void CSpecialCharacterList::EditItem(int item)
{
    SetCurrentItem(item);
    edit(m_model.Cell(item));
}

void CSpecialCharacterList::ChooseWaiting()
{
    if (m_doubleClick.isActive()) {
        m_doubleClick.stop();
        Q_EMIT Chosen(m_model.Item(std::exchange(m_waiting, {})), m_waitingModifiers);
    }
}

void CSpecialCharacterList::mousePressEvent(QMouseEvent *event)
{
    ChooseWaiting();
    m_pressed = std::exchange(m_clickEndedEdit, false) ? QModelIndex() : indexAt(event->position().toPoint());
    QTableView::mousePressEvent(event);
}

void CSpecialCharacterList::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const int item = m_model.Item(m_pressed);
    const bool chosen = event->button() == Qt::LeftButton && item >= 0
        && item == m_model.Item(indexAt(event->position().toPoint()));
    const QPersistentModelIndex pressed = std::exchange(m_pressed, {});
    if (!chosen) {
        return;
    }
    if (m_model.IsEditedByDoubleClick(item)) {
        m_waiting = pressed;
        m_waitingModifiers = event->modifiers();
        m_doubleClick.start(QApplication::doubleClickInterval());
    } else {
        Q_EMIT Chosen(item, event->modifiers());
    }
}

void CSpecialCharacterList::mouseDoubleClickEvent(QMouseEvent *event)
{
    // In a grid there is nothing to edit: two fast clicks are two characters.
    const int item = m_model.Item(indexAt(event->position().toPoint()));
    if (m_model.ShowsOwn() && item >= 0 && event->button() == Qt::LeftButton) {
        m_doubleClick.stop();
        Q_EMIT EditWanted(item);
    } else {
        mousePressEvent(event);
    }
}

void CSpecialCharacterList::keyPressEvent(QKeyEvent *event)
{
    if (IsEditing()) {
        return; // What the edit box leaves, Enter above all, is no choice.
    }
    const int item = CurrentItem();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT Chosen(item, event->modifiers());
        return;
    case Qt::Key_F2:
        Q_EMIT EditWanted(item);
        return;
    case Qt::Key_Delete:
        Q_EMIT RemoveWanted(item);
        return;
    default:
        QTableView::keyPressEvent(event);
    }
}

void CSpecialCharacterList::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    LayOut();
}

void CSpecialCharacterList::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        LayOut();
    }
}

void CSpecialCharacterList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT CurrentItemChanged(m_model.Item(current));
}

void CSpecialCharacterList::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // A click gives the list the focus, which ends the edit before the list is told of the click.
    m_clickEndedEdit = hasFocus();
    // Tab ends the editing too: the next character is not edited unasked.
    const bool goesOn =
        hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, goesOn ? QAbstractItemDelegate::NoHint : hint);
    Q_EMIT EditEnded();
}

QItemSelectionModel::SelectionFlags CSpecialCharacterList::selectionCommand(
    const QModelIndex &index, const QEvent * /*event*/) const
{
    // Shift and Ctrl say what happens to a character, not which ones are selected.
    if (!index.isValid()) {
        return QItemSelectionModel::NoUpdate;
    }
    return m_model.ShowsOwn() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                              : QItemSelectionModel::ClearAndSelect;
}
