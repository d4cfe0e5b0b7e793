// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QTableView>

/// The table of a whole round. Typing in it looks for a row, and the current row grows until its texts can be
/// read to their end.
class CRoundTable : public QTableView
{
    Q_OBJECT

public:
    explicit CRoundTable(const QString &accessibleName, QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    /// The mark of the cells that have one.
    void setMark(const QIcon &mark);
    /// Selects a row and scrolls it into view.
    void showRow(int row);
    QSize sizeHint() const override;

Q_SIGNALS:
    void rowSelected(int row);
    /// Text was typed that begins a row; `row` is where to look first.
    void searchTyped(const QString &start, int row);
    /// It got the focus by Tab: nothing tells which row is the current one.
    void reachedByTab();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyboardSearch(const QString &search) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitCurrentRow();

    QString m_typed;
    QElapsedTimer m_sinceTyped;
    int m_fittedRow = -1;
};
