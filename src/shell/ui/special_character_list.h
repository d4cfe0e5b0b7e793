// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <QTimer>

class CSpecialCharacterModel;
class CTexts;

/// The characters to choose from: a grid of as many columns as fit, or the list of the user's own. It tells
/// what is chosen and does nothing about it. An item is a character's row in CSpecialCharacters.
class CSpecialCharacterList : public QTableView
{
    Q_OBJECT

public:
    CSpecialCharacterList(CSpecialCharacterModel &model, const CTexts &texts, QWidget *parent = nullptr);

    /// Call it after the model was reset.
    void LayOut();
    /// -1 for none.
    int CurrentItem() const;
    void SetCurrentItem(int item);
    void EditItem(int item);
    bool IsEditing() const { return state() == EditingState; }
    /// A click on an own character waits, since a second one may make it a double click. Call it before
    /// anything else is typed or clicked: a click that waits chooses now.
    void ChooseWaiting();

    QSize sizeHint() const override;

Q_SIGNALS:
    /// By a click or Enter.
    void Chosen(int item, Qt::KeyboardModifiers modifiers);
    /// By a double click or F2.
    void EditWanted(int item);
    void RemoveWanted(int item);
    void EditEnded();
    void CurrentItemChanged(int item);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex &index, const QEvent *event = nullptr) const override;

private:
    int CellSize() const;
    int RoomForColumns() const;
    void EnlargeFont();

    CSpecialCharacterModel &m_model;
    QPersistentModelIndex m_pressed; // None for a click that only ends an edit.
    bool m_clickEndedEdit = false;
    QPersistentModelIndex m_waiting;
    Qt::KeyboardModifiers m_waitingModifiers;
    QTimer m_doubleClick;
    bool m_layingOut = false;
};
