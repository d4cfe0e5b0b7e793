// SPDX-License-Identifier: MIT
#include "editor/ui/word_list_delegate.h"

#include "editor/pending_entries.h"
#include "editor/ui/cell_colours.h"
#include "editor/ui/marked_line.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/plain_text.h"
#include "platform/ui/long_line_edit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTextCharFormat>
#include <QToolTip>

CWordListDelegate::CWordListDelegate(CWordListControl &list)
    : QStyledItemDelegate(&list), m_list(list), m_flagOn(QStringLiteral(":/pictures/flag-on.svg")),
      m_flagOff(QStringLiteral(":/pictures/flag-off.svg")), m_newRow(QStringLiteral(":/pictures/new-row.svg"))
{
}

QRect CWordListDelegate::MarkArea(const QRect &cell, const QFontMetrics &metrics)
{
    const int size = std::min(metrics.height(), cell.height() - 4);
    return {cell.left(), cell.top(), size + 2 * (size / 3), cell.height()};
}

void CWordListDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *const model = static_cast<const CWordListModel *>(index.model());
    const bool isNumber = model->FieldOf(index.column()) == CWordListModel::NumberColumn;
    const CellColours colours = CellColoursFor(option.palette,
        {.selected = option.state.testFlag(QStyle::State_Selected),
            .focused = m_list.HasKeyboard(),
            .cursor = index.column() == m_list.currentIndex().column(),
            .hot = index.row() == m_list.HotRow(),
            .number = isNumber});
    painter->fillRect(option.rect, colours.background);
    if (index == m_list.currentIndex() && m_list.hasFocus() && !option.state.testFlag(QStyle::State_Selected)) {
        // Where the next key goes although nothing is selected.
        painter->setPen(option.palette.color(QPalette::Active, QPalette::Highlight));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }

    QRect room = option.rect;
    const QVariant mark = index.data(CWordListModel::MarkRole);
    if (mark.isValid()) {
        const QRect area = MarkArea(option.rect, option.fontMetrics);
        // The marks keep the window's own background, on which they can be told also in a selected row.
        painter->fillRect(area, option.palette.base());
        const int size = std::min(option.fontMetrics.height(), option.rect.height() - 4);
        QRect picture(0, 0, size, size);
        picture.moveCenter(area.center());
        const QIcon &icon = mark.toInt() == CWordListModel::NewRow ? m_newRow
            : mark.toInt() == CWordListModel::Flagged              ? m_flagOn
                                                                   : m_flagOff;
        icon.paint(painter, picture);
        room.setLeft(area.right() + 1);
    }
    room.adjust(isNumber || mark.isValid() ? 2 : 4, 1, isNumber ? -4 : -2, -1);
    const QVariant alignment = index.data(Qt::TextAlignmentRole);
    painter->setPen(colours.text);
    painter->setFont(option.font);
    if (const TextMark *const found = m_list.MarkIn(index)) {
        QTextCharFormat turnedRound;
        turnedRound.setForeground(colours.background);
        turnedRound.setBackground(colours.text);
        DrawMarkedLine(
            *painter, room, {index.data(Qt::DisplayRole).toString(), found->start, found->length}, turnedRound);
        return;
    }
    painter->drawText(room,
        (alignment.isValid() ? Qt::Alignment(alignment.toInt()) : Qt::AlignVCenter | Qt::AlignLeft)
            | Qt::Alignment(Qt::TextSingleLine),
        option.fontMetrics.elidedText(Isolated(ShownShort(index.data(Qt::DisplayRole).toString())),
            Qt::ElideRight, room.width(), Qt::TextSingleLine));
}

QWidget *CWordListDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem & /*option*/, const QModelIndex &index) const
{
    const auto *const model = static_cast<const CWordListModel *>(index.model());
    auto *const line = new CLongLineEdit(model->LongTextHint(), parent);
    line->setObjectName(QStringLiteral("cellEditor"));
    line->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    line->setFont(m_list.font());
    line->setFrame(false);
    line->setAutoFillBackground(true);
    connect(line, &QLineEdit::textEdited, this, &CWordListDelegate::Typed);
    m_editor = line;
    m_edited = index;
    Q_EMIT EditorOpened(line, index);
    return line;
}

void CWordListDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // A change of the list must not undo what is being typed.
    auto *const line = qobject_cast<CLongLineEdit *>(editor);
    if (!line->isModified() && line->text().isEmpty()) {
        line->SetWholeText(index.data(Qt::EditRole).toString());
    }
}

void CWordListDelegate::updateEditorGeometry(
    QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QRect place = option.rect;
    if (index.data(CWordListModel::MarkRole).isValid()) {
        place.setLeft(MarkArea(option.rect, option.fontMetrics).right() + 1);
    }
    editor->setGeometry(place);
}

void CWordListDelegate::EndEditing(bool commit, int key)
{
    if (!m_editor) {
        return;
    }
    QWidget *const editor = m_editor;
    if (commit) {
        m_endKey = key;
        Q_EMIT commitData(editor);
        m_endKey = 0;
    }
    Q_EMIT closeEditor(editor, NoHint);
}

std::optional<OpenEdit> CWordListDelegate::Edited() const
{
    const auto *const line = qobject_cast<const CLongLineEdit *>(m_editor);
    if (line == nullptr || !m_edited.isValid()) {
        return {};
    }
    const auto *const model = static_cast<const CWordListModel *>(m_edited.model());
    return OpenEdit{m_edited.row(), model->FieldOf(m_edited.column()), line->WholeText()};
}

std::optional<CellEdit> CWordListDelegate::TakeEdit(QWidget *editor) const
{
    const auto *const line = qobject_cast<CLongLineEdit *>(editor);
    if (line == nullptr || line != m_editor || !m_edited.isValid()) {
        return {};
    }
    m_editor = nullptr; // What ends twice is told once.
    const auto *const model = static_cast<const CWordListModel *>(m_edited.model());
    using Key = CellEdit::Key;
    const Key key = m_endKey == Qt::Key_Return ? Key::Enter
        : m_endKey == Qt::Key_Tab              ? Key::Tab
        : m_endKey == Qt::Key_Backtab          ? Key::Backtab
                                               : Key::None;
    return CellEdit{m_edited.row(), model->FieldOf(m_edited.column()), line->WholeText(), key};
}

bool CWordListDelegate::helpEvent(
    QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    // The whole text is told only where it doesn't fit.
    const int mark =
        index.data(CWordListModel::MarkRole).isValid() ? MarkArea(option.rect, option.fontMetrics).width() : 0;
    const int wanted = option.fontMetrics.horizontalAdvance(ShownShort(index.data(Qt::DisplayRole).toString()));
    if (event->type() == QEvent::ToolTip && wanted <= option.rect.width() - mark - 6) {
        QToolTip::hideText();
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

bool CWordListDelegate::eventFilter(QObject *watched, QEvent *event)
{
    // One that is being taken down is no line any more, and loses the focus once again.
    if (watched != m_editor || qobject_cast<CLongLineEdit *>(watched) == nullptr) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        switch (const int key = static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            EndEditing(true, key == Qt::Key_Enter ? int(Qt::Key_Return) : key);
            m_list.EndEditing(true);
            return true;
        case Qt::Key_Escape: {
            const std::optional<OpenEdit> left = Edited();
            EndEditing(false);
            if (left && left->text.isEmpty()) {
                Q_EMIT m_list.LeftEmpty(left->row, left->field);
            }
            return true;
        }
        default:
            return false;
        }
    }
    if (event->type() == QEvent::FocusOut) {
        // Another window, a menu or a list that pops up takes the focus for a while only.
        switch (static_cast<QFocusEvent *>(event)->reason()) {
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
        case Qt::MenuBarFocusReason:
            break;
        default:
            EndEditing(true);
        }
    }
    return false;
}
