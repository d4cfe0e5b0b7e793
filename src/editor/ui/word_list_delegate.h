// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <optional>

class CWordListControl;
class QLineEdit;
struct CellEdit;
struct OpenEdit;

/// Draws the cells of the word list: the mark at the left edge, then the text, in the colours of the row's
/// selection and of the cell cursor; the number column in a quieter colour. Edits a cell in place in a line.
class CWordListDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `list` owns the delegate.
    explicit CWordListDelegate(CWordListControl &list);

    /// Where the mark of a cell is drawn.
    static QRect MarkArea(const QRect &cell, const QFontMetrics &metrics);

    /// Nothing: a flag is toggled by the list, where it is drawn.
    bool editorEvent(QEvent * /*event*/, QAbstractItemModel * /*model*/,
        const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) override
    {
        return false;
    }
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void updateEditorGeometry(
        QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Closes the open editor; `key` is a Qt::Key when one ended it.
    void EndEditing(bool commit, int key = 0);
    /// The open editor; none without one.
    QWidget *Editor() const { return m_editor; }
    /// What it edits.
    std::optional<OpenEdit> Edited() const;
    /// What an editor that ends holds.
    std::optional<CellEdit> TakeEdit(QWidget *editor) const;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
        const QModelIndex &index) override;

Q_SIGNALS:
    /// A line was made for editing a cell; its text comes later.
    void EditorOpened(QLineEdit *line, const QModelIndex &cell) const;
    /// The text in the open editor is another.
    void Typed() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    CWordListControl &m_list;
    QIcon m_flagOn;
    QIcon m_flagOff;
    QIcon m_newRow;
    mutable QPointer<QWidget> m_editor;
    mutable QPersistentModelIndex m_edited;
    int m_endKey = 0;
};
