// SPDX-License-Identifier: MIT
#include "quiz/ui/change_entry_dialog.h"

#include "platform/plain_text.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

namespace {

void AddRow(QFormLayout &form, const QString &caption, QWidget *control)
{
    control->setAccessibleName(CaptionReadOut(caption));
    form.addRow(caption, control);
}

}

CChangeEntryDialog::CChangeEntryDialog(CQuizSession &session, const CTexts &texts, int start, QWidget *parent)
    : QDialog(parent), m_entries(session, texts), m_list(MakeList(start)), m_term1(MakeField("term1")),
      m_term2(MakeField("term2")), m_note(MakeField("note"))
{
    setWindowTitle(texts.Get(Text::ChangeEntryTitle));
    setWindowModality(Qt::WindowModal);
    auto *change = new QPushButton(texts.Get(Text::ChangeEntryApply), this);
    change->setObjectName(QStringLiteral("changeButton"));
    change->setDefault(true);
    auto *close = new QPushButton(texts.Get(Text::Close), this);
    close->setObjectName(QStringLiteral("closeButton"));

    auto *form = new QFormLayout;
    AddRow(*form, texts.Get(Text::ChangeEntryList), m_list);
    AddRow(*form, m_entries.Label(0), m_term1);
    AddRow(*form, m_entries.Label(1), m_term2);
    AddRow(*form, texts.Get(Text::ChangeEntryNote), m_note);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(change);
    buttons->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addLayout(buttons);

    connect(m_list, &QComboBox::currentIndexChanged, this, &CChangeEntryDialog::ShowFields);
    connect(change, &QPushButton::clicked, this, &CChangeEntryDialog::Change);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    ShowFields();
    m_term1->setFocus();
}

QComboBox *CChangeEntryDialog::MakeList(int start)
{
    auto *list = new QComboBox(this);
    list->setObjectName(QStringLiteral("entries"));
    // Nothing here may look at every line: a list may have a hundred thousand.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(50);
    // Some styles let the lines cover the whole screen, as wide as the longest one.
    list->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    list->setMaxVisibleItems(15);
    auto *view = new QListView(list);
    view->setUniformItemSizes(true);
    view->setTextElideMode(Qt::ElideRight);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setView(view);
    list->setModel(&m_entries);
    list->setCurrentIndex(start);
    return list;
}

QLineEdit *CChangeEntryDialog::MakeField(const char *name)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QLatin1StringView(name));
    return field;
}

void CChangeEntryDialog::ShowFields()
{
    const CChangeEntry::Fields fields = m_entries.FieldsOf(m_list->currentIndex());
    m_term1->setText(fields.term1);
    m_term2->setText(fields.term2);
    m_note->setText(fields.note);
}

void CChangeEntryDialog::Change()
{
    const CChangeEntry::Fields typed = {m_term1->text(), m_term2->text(), m_note->text()};
    if (m_entries.Change(m_list->currentIndex(), typed)) {
        ShowFields();
    }
}
