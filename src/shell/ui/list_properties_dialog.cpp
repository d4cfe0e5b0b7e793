// SPDX-License-Identifier: MIT
#include "shell/ui/list_properties_dialog.h"

#include "platform/plain_text.h"
#include "platform/ui/contrast.h"
#include "platform/ui/label.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>

namespace {

/// A value that is only shown: it takes the focus, so that it is read out and can be copied.
void AddShown(QFormLayout &rows, const char *name, const QString &caption, const QString &value)
{
    auto *const line = new QLineEdit(ShownShort(value), rows.parentWidget());
    line->setObjectName(QLatin1StringView(name));
    line->setReadOnly(true);
    line->setFrame(false);
    line->setCursorPosition(0);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    line->setPalette(palette);
    AddLabelledRow(rows, caption, line);
}

}

CListPropertiesDialog::CListPropertiesDialog(const CListPropertiesForm &form, QWidget *parent)
    : CSettingsSheet(form.Texts().Get(Text::PropertiesTitle), parent), m_form(form)
{
    AddPage(MakeGeneralPage(), m_form.Texts().Get(Text::PropertiesGeneralPage));
    AddPage(MakeQuestionsPage(), m_form.Texts().Get(Text::PropertiesQuestionsPage));
}

QWidget *CListPropertiesDialog::MakeGeneralPage()
{
    const CTexts &texts = m_form.Texts();
    auto *const page = new QWidget;
    auto *const rows = new QFormLayout(page);
    const auto addField = [&](const char *name, int caption, QString &value) {
        CLongLineEdit *const field = MakeTextField(page, name, texts.Get(Text::LongText), value);
        AddLabelledRow(*rows, texts.Get(caption), field);
        connect(field, &QLineEdit::textChanged, this, &CListPropertiesDialog::ValuesChanged);
    };
    addField("language1", Text::ListLanguage1, m_form.languages[0]);
    addField("language2", Text::ListLanguage2, m_form.languages[1]);
    addField("author", Text::ListAuthor, m_form.author);
    addField("comments", Text::ListComments, m_form.comments);
    AddShown(*rows, "path", texts.Get(Text::ListFile), m_form.Path());
    AddShown(*rows, "entryCount", texts.Get(Text::ListEntryCount), m_form.EntryCount());
    AddShown(*rows, "flagged1", m_form.FlaggedCaption(0), m_form.FlaggedCount(0));
    AddShown(*rows, "flagged2", m_form.FlaggedCaption(1), m_form.FlaggedCount(1));
    return page;
}

QWidget *CListPropertiesDialog::MakeQuestionsPage()
{
    auto *const page = new QWidget;
    auto *const rows = new QFormLayout(page);
    AddQuestion(*rows, 0);
    AddQuestion(*rows, 1);
    rows->addRow(MakeWrappedLabel(m_form.Texts().Get(Text::QuestionVariables), page));
    return page;
}

void CListPropertiesDialog::AddQuestion(QFormLayout &rows, int direction)
{
    QWidget *const page = rows.parentWidget();
    const size_t index = size_t(direction);
    const QByteArray number = QByteArray::number(direction + 1);
    QCheckBox *const adapt =
        MakeCheckBox(page, "adapt" + number, m_form.AdaptCaption(direction), m_form.adaptQuestion[index]);
    CLongLineEdit *const question = MakeTextField(
        page, "question" + number, m_form.Texts().Get(Text::LongText), m_form.questionTemplate[index]);
    question->setPlaceholderText(m_form.FactoryQuestion());
    // It is read in a field that can't be used: some styles make that as good as invisible.
    QPalette palette = question->palette();
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText,
        QuietText(palette.color(QPalette::Active, QPalette::Text),
            palette.color(QPalette::Disabled, QPalette::Base), 0.3));
    question->setPalette(palette);
    QLabel *const example = MakeWrappedLabel({}, page);
    example->setObjectName(QLatin1StringView("example" + number));
    rows.addRow(adapt);
    rows.addRow(question);
    rows.addRow(example);

    const auto update = [this, adapt, question, example, direction] {
        const QString caption = m_form.AdaptCaption(direction);
        adapt->setText(caption);
        adapt->setAccessibleName(CaptionReadOut(caption));
        question->setAccessibleName(adapt->accessibleName());
        question->setEnabled(adapt->isChecked());
        example->setText(m_form.Example(direction));
        question->setAccessibleDescription(example->text());
    };
    connect(adapt, &QCheckBox::toggled, this, update);
    connect(question, &QLineEdit::textChanged, this, update);
    connect(this, &CListPropertiesDialog::ValuesChanged, this, update);
    update();
}
