// SPDX-License-Identifier: MIT
#include "tools/ui/table_guide1.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "tools/table_guide_form.h"
#include "tools/text_numbers.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

CTableGuide1::CTableGuide1(CTableGuideForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(MakeEntries());
    layout->addWidget(MakeColumns(), 1);
    ShowColumns(0, 0);
}

QWidget *CTableGuide1::MakeEntries()
{
    const CTexts &texts = m_form.Texts();
    auto *const group = new QGroupBox(texts.Get(Text::TableEntries), this);
    auto *const layout = new QVBoxLayout(group);
    int &useSelected = m_form.Options().useSelected;
    // Without a selection the table has all; what was chosen for when there is one stays.
    const bool onlySelected = useSelected != 0 && m_form.HasSelection();
    layout->addWidget(MakeRadioButton(group, "allEntries", texts.Get(Text::TableAllEntries), !onlySelected,
        [&useSelected] { useSelected = 0; }));
    QRadioButton *const selected = MakeRadioButton(group, "selectedEntries",
        texts.Get(Text::TableSelectedEntries), onlySelected, [&useSelected] { useSelected = 1; });
    selected->setEnabled(m_form.HasSelection());
    layout->addWidget(selected);
    return group;
}

QWidget *CTableGuide1::MakeColumns()
{
    auto *const columns = new QWidget(this);
    auto *const layout = new QHBoxLayout(columns);
    layout->setContentsMargins({});
    m_add = MakeButton(Text::TableAddColumn, "addColumn");
    m_remove = MakeButton(Text::TableRemoveColumn, "removeColumn");
    m_up = MakeButton(Text::TableColumnUp, "columnUp");
    m_down = MakeButton(Text::TableColumnDown, "columnDown");
    const auto addButtons = [&](QPushButton *first, QPushButton *second) {
        auto *const buttons = new QVBoxLayout;
        buttons->addStretch(1);
        buttons->addWidget(first);
        buttons->addWidget(second);
        buttons->addStretch(1);
        layout->addLayout(buttons);
    };
    m_available = AddList(*layout, Text::TableAvailableColumns, "availableColumns");
    addButtons(m_add, m_remove);
    m_chosen = AddList(*layout, Text::TableChosenColumns, "chosenColumns");
    addButtons(m_up, m_down);
    // By Tab in the order in which they stand.
    const QList<QWidget *> order = {m_available, m_add, m_remove, m_chosen, m_up, m_down};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }

    connect(m_add, &QPushButton::clicked, this, &CTableGuide1::AddChosen);
    connect(m_remove, &QPushButton::clicked, this, &CTableGuide1::RemoveChosen);
    connect(m_up, &QPushButton::clicked, this, [this] { MoveChosen(true); });
    connect(m_down, &QPushButton::clicked, this, [this] { MoveChosen(false); });
    connect(m_available, &QListWidget::itemDoubleClicked, this, &CTableGuide1::AddChosen);
    connect(m_chosen, &QListWidget::itemDoubleClicked, this, &CTableGuide1::RemoveChosen);
    return columns;
}

QListWidget *CTableGuide1::AddList(QBoxLayout &layout, int caption, const char *name)
{
    QLabel *const label = MakeLabel(m_form.Texts().Get(caption), this);
    auto *const list = new QListWidget(this);
    list->setObjectName(QLatin1StringView(name));
    list->setAccessibleName(CaptionReadOut(label->text()));
    list->setMinimumSize(fontMetrics().averageCharWidth() * 20, fontMetrics().lineSpacing() * 8);
    label->setBuddy(list);
    connect(list, &QListWidget::currentRowChanged, this, &CTableGuide1::UpdateEnabled);
    auto *const column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(list, 1);
    layout.addLayout(column, 1);
    return list;
}

QPushButton *CTableGuide1::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_form.Texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

void CTableGuide1::AddChosen()
{
    const int row = m_available->currentRow();
    m_form.Columns().Add(row);
    ShowColumns(row, int(m_form.Columns().Chosen().size()) - 1);
}

void CTableGuide1::RemoveChosen()
{
    const int row = m_chosen->currentRow();
    const TableColumn column = m_form.Columns().Chosen().value(row);
    m_form.Columns().Remove(row);
    ShowColumns(int(m_form.Columns().Available().indexOf(column)), row);
}

void CTableGuide1::MoveChosen(bool up)
{
    const int row = m_chosen->currentRow();
    m_form.Columns().Move(row, up);
    ShowColumns(m_available->currentRow(), up ? row - 1 : row + 1);
}

void CTableGuide1::ShowColumns(int available, int chosen)
{
    const auto show = [this](QListWidget &list, const QList<TableColumn> &columns, int row) {
        list.clear();
        for (const TableColumn column : columns) {
            list.addItem(m_form.ColumnName(column));
        }
        list.setCurrentRow(std::min(row, list.count() - 1));
    };
    show(*m_available, m_form.Columns().Available(), available);
    show(*m_chosen, m_form.Columns().Chosen(), chosen);
    UpdateEnabled();
    Q_EMIT ColumnsChanged();
}

void CTableGuide1::UpdateEnabled()
{
    if (m_chosen == nullptr) {
        return; // While the page is made.
    }
    const CTableColumns &columns = m_form.Columns();
    m_add->setEnabled(m_available->currentRow() >= 0);
    m_remove->setEnabled(m_chosen->currentRow() >= 0);
    m_up->setEnabled(columns.CanMove(m_chosen->currentRow(), true));
    m_down->setEnabled(columns.CanMove(m_chosen->currentRow(), false));
}
