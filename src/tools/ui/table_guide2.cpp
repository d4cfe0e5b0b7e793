// SPDX-License-Identifier: MIT
#include "tools/ui/table_guide2.h"

#include "platform/ui/long_line_edit.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "tools/table_guide_form.h"
#include "tools/text_numbers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

CTableGuide2::CTableGuide2(CTableGuideForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    const CTexts &texts = form.Texts();
    CreateTableSettings &options = form.Options();
    QCheckBox *const replace = MakeCheckBox(
        this, "doReplaceAsterisc", texts.Get(Text::TableReplaceSeparator), options.doReplaceAsterisc);
    CLongLineEdit *const replacement =
        MakeTextField(this, "replaceAsterisc", texts.Get(Text::LongText), options.replaceAsterisc);
    replacement->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    replacement->setAccessibleName(texts.Get(Text::TableReplacement));
    replacement->setEnabled(replace->isChecked());
    connect(replace, &QCheckBox::toggled, replacement, &QWidget::setEnabled);
    auto *const line = new QHBoxLayout;
    line->addWidget(replace);
    line->addWidget(replacement, 1);

    auto *const choices = new QFormLayout;
    const auto addChoice = [&](const char *name, int caption, int items, int &value) {
        QComboBox *const choice = MakeChoice(this, name, form.Choices(items), value);
        AddRow(*choices, texts.Get(caption), choice);
        return choice;
    };
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addWidget(
        MakeCheckBox(this, "deleteComments", texts.Get(Text::TableDeleteComments), options.deleteComments));
    layout->addLayout(choices);
    layout->addStretch(1);
    addChoice("italicComments", Text::TableComments, Text::TableCommentStyles, options.italicComments);
    m_bold = addChoice("makeBold", Text::TableBold, Text::TableBoldChoices, options.makeBold);
}

void CTableGuide2::showEvent(QShowEvent *event)
{
    m_bold->setEnabled(m_form.Options().htmlFormat); // Chosen on the next page.
    QWidget::showEvent(event);
}
