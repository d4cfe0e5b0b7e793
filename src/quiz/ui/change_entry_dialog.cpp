// SPDX-License-Identifier: MIT
#include "quiz/ui/change_entry_dialog.h"

#include "platform/ui/elided_label.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalBlocker>

CChangeEntryDialog::CChangeEntryDialog(
    CQuizSession &session, const CTexts &texts, IUserPrompt &prompt, int start, QWidget *parent)
    : QDialog(parent), m_entries(session, texts, prompt), m_list(makeList(start)), m_term1(makeField("term1")),
      m_term2(makeField("term2")), m_note(makeField("note")), m_stored(new CElidedLabel(this))
{
    setWindowTitle(texts.Get(Text::ChangeEntryTitle));
    setWindowModality(Qt::WindowModal);
    auto *change = new QPushButton(texts.Get(Text::ChangeEntryApply), this);
    change->setObjectName(QStringLiteral("changeButton"));
    change->setDefault(true);
    auto *close = new QPushButton(texts.Get(Text::Close), this);
    close->setObjectName(QStringLiteral("closeButton"));

    auto *form = new QFormLayout;
    AddLabelledRow(*form, texts.Get(Text::ChangeEntryList), m_list);
    AddLabelledRow(*form, m_entries.label(0), m_term1);
    AddLabelledRow(*form, m_entries.label(1), m_term2);
    AddLabelledRow(*form, texts.Get(Text::ChangeEntryNote), m_note);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_stored, 1);
    buttons->addWidget(change);
    buttons->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addLayout(buttons);

    m_stored->setObjectName(QStringLiteral("storedLine"));
    connect(m_list, &QComboBox::currentIndexChanged, this, &CChangeEntryDialog::chooseEntry);
    connect(change, &QPushButton::clicked, this, &CChangeEntryDialog::change);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    for (const QLineEdit *field : {m_term1, m_term2, m_note}) {
        connect(field, &QLineEdit::textEdited, m_stored, &QLabel::clear);
    }
    showEntry(start);
    m_term1->setFocus();
    NoticeHeldKeys(*this);
}

QComboBox *CChangeEntryDialog::makeList(int start)
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

QLineEdit *CChangeEntryDialog::makeField(const char *name)
{
    auto *field = new QLineEdit(this);
    field->setObjectName(QLatin1StringView(name));
    return field;
}

CChangeEntry::Fields CChangeEntryDialog::typed() const
{
    return {m_term1->text(), m_term2->text(), m_note->text()};
}

void CChangeEntryDialog::showEntry(int entry)
{
    m_entry = entry;
    const CChangeEntry::Fields fields = m_entries.fieldsOf(entry);
    m_term1->setText(fields.term1);
    m_term2->setText(fields.term2);
    m_note->setText(fields.note);
    m_stored->clear();
}

void CChangeEntryDialog::chooseEntry(int entry)
{
    if (m_entries.mayLeave(m_entry, typed())) {
        showEntry(entry);
    } else {
        const QSignalBlocker blocker(m_list);
        m_list->setCurrentIndex(m_entry);
    }
}

void CChangeEntryDialog::change()
{
    if (m_entries.change(m_entry, typed())) {
        showEntry(m_entry);
        m_stored->ShowText(m_entries.storedLine(m_entry));
    } else {
        (m_term1->text().trimmed().isEmpty() ? m_term1 : m_term2)->setFocus();
    }
}

void CChangeEntryDialog::reject()
{
    if (m_entries.mayLeave(m_entry, typed())) {
        QDialog::reject();
    }
}
