// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CTableGuideForm;
class QBoxLayout;
class QListWidget;
class QPushButton;

/// The first page of the table wizard: which entries and which columns a table has.
class CTableGuide1 : public QWidget
{
    Q_OBJECT

public:
    /// The form is not owned.
    explicit CTableGuide1(CTableGuideForm &form, QWidget *parent = nullptr);

Q_SIGNALS:
    void ColumnsChanged();

private:
    QWidget *MakeEntries();
    QWidget *MakeColumns();
    QListWidget *AddList(QBoxLayout &layout, int caption, const char *name);
    QPushButton *MakeButton(int text, const char *name);
    void AddChosen();
    void RemoveChosen();
    void MoveChosen(bool up);
    /// Shows the lists anew with these rows current.
    void ShowColumns(int available, int chosen);
    void UpdateEnabled();

    CTableGuideForm &m_form;
    QListWidget *m_available = nullptr;
    QListWidget *m_chosen = nullptr;
    QPushButton *m_add = nullptr;
    QPushButton *m_remove = nullptr;
    QPushButton *m_up = nullptr;
    QPushButton *m_down = nullptr;
};
