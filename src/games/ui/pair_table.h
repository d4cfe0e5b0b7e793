// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/ui/round_table.h"

#include <QTimer>

/// The table of pair matching: answers are moved in it by dragging a row, by Shift with an arrow key, or by
/// Enter on two rows.
class CPairTable : public CRoundTable
{
    Q_OBJECT

public:
    explicit CPairTable(const QString &accessibleName, QWidget *parent = nullptr);

    void setMayMove(bool mayMove);

Q_SIGNALS:
    /// One row up (-1) or down (1).
    void moveRequested(int step);
    void exchangeRequested(int from, int to);
    void enterPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setDropRow(int row);
    /// Scrolls a row on while something is dragged to an edge or beyond it.
    void scrollBelowDrag();

    bool m_mayMove = true;
    int m_draggedRow = -1;
    int m_dropRow = -1; // That under the cursor, while a row is dragged.
    QTimer m_dragScroll;
};
