// SPDX-License-Identifier: MIT
#include "editor/ui/entry_fields.h"

#include "editor/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/drawn_icon.h"
#include "platform/ui/elided_label.h"
#include "platform/ui/long_line_edit.h"
#include "resources/texts.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcutEvent>

#include <algorithm>

namespace {

/// A language's name may be long; the field beside it needs room as well.
constexpr int MostLabelCharacters = 30;

}

CEntryFields::CEntryFields(const CTexts &texts, QWidget *parent) : QWidget(parent), m_texts(texts)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (size_t i = 0; i < m_fields.size(); ++i) {
        m_labels[i] = new CElidedLabel(this);
        m_labels[i]->AskForRoom(MostLabelCharacters);
        m_fields[i] = new CLongLineEdit(texts.Get(Text::LongText), this);
        m_fields[i]->setObjectName(QStringLiteral("field%1").arg(i));
        m_labels[i]->setBuddy(m_fields[i]);
        m_fields[i]->installEventFilter(this);
        layout->addWidget(m_labels[i], int(i), 0);
        layout->addWidget(m_fields[i], int(i), 1);
        connect(m_fields[i], &QLineEdit::returnPressed, this, &CEntryFields::AddOrChange);
        connect(m_fields[i], &QLineEdit::textEdited, this, &CEntryFields::Typed);
    }
    auto *newEntry = MakeButton(Text::ClearFieldsButton, "newEntryButton");
    m_addOrChange = MakeButton(Text::AddEntryButton, "addButton");
    layout->addWidget(newEntry, 0, 2);
    layout->addWidget(m_addOrChange, 1, 2);
    layout->setColumnStretch(1, 1);
    // The keys go on from the note to what is done with it.
    setTabOrder(m_fields.back(), m_addOrChange);
    setTabOrder(m_addOrChange, newEntry);
    connect(newEntry, &QPushButton::clicked, this, &CEntryFields::NewEntry);
    connect(m_addOrChange, &QPushButton::clicked, this, &CEntryFields::AddOrChange);
    // Wide enough for both of its texts.
    SetChangeMode(true);
    const int changeWidth = m_addOrChange->sizeHint().width();
    SetChangeMode(false);
    m_addOrChange->setMinimumWidth(std::max(changeWidth, m_addOrChange->sizeHint().width()));
}

QPushButton *CEntryFields::MakeButton(int text, const char *name)
{
    auto *button = new QPushButton(m_texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->installEventFilter(this);
    return button;
}

bool CEntryFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto field = std::ranges::find(m_fields, watched);
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // Not when a window or a menu gives it back.
        if (field != m_fields.end()
            && (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
                || reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason
                || reason == Qt::OtherFocusReason)) {
            Q_EMIT Entered(int(field - m_fields.begin()));
        }
    }
    // At once: the toolkit would show the button pressed first, while typing goes on in the field before.
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
        static_cast<QPushButton *>(watched)->click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CEntryFields::SetLanguages(const QString &language1, const QString &language2)
{
    const std::array names = {language1, language2};
    for (size_t i = 0; i < m_fields.size(); ++i) {
        const QString name = i < names.size() ? ShownInCaption(names[i]) : QString();
        m_labels[i]->ShowText(m_texts.Fill(Text::FieldLanguage1 + int(i), {name}));
        m_fields[i]->setAccessibleName(i < names.size() ? names[i] : m_texts.Get(Text::Note));
    }
}

EntryTexts CEntryFields::Texts() const
{
    return {m_fields[0]->WholeText(), m_fields[1]->WholeText(), m_fields[2]->WholeText()};
}

void CEntryFields::SetTexts(const EntryTexts &texts)
{
    for (size_t i = 0; i < m_fields.size(); ++i) {
        m_fields[i]->SetWholeText(texts[i]);
        m_fields[i]->setCursorPosition(0);
    }
}

QLineEdit &CEntryFields::Line(int field) const
{
    return *m_fields[size_t(field)];
}

void CEntryFields::SetChangeMode(bool change)
{
    m_changeMode = change;
    m_addOrChange->setText(m_texts.Get(change ? Text::ChangeEntryButton : Text::AddEntryButton));
    m_addOrChange->setIcon(DrawnIcon(
        change ? QStringLiteral(":/icons/document-edit.svg") : QStringLiteral(":/pictures/new-row.svg")));
}

void CEntryFields::FocusField(int field)
{
    FocusText(field);
    m_fields[size_t(field)]->selectAll();
}

void CEntryFields::FocusText(int field)
{
    m_fields[size_t(field)]->setFocus(Qt::OtherFocusReason);
}

void CEntryFields::SelectText(int field, int start, int length)
{
    if (length > 0) {
        m_fields[size_t(field)]->setSelection(start, length);
    }
}
