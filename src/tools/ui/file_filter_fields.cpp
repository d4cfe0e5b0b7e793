// SPDX-License-Identifier: MIT
#include "tools/ui/file_filter_fields.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>

#include <limits>

CFileFilterFields::CFileFilterFields(const CTexts &texts, const FileFilterValues &values, QWidget *parent,
    const std::function<void(QGridLayout &rows, QWidget *page)> &addFields)
    : QWidget(parent), m_texts(texts)
{
    QCheckBox *const use = MakeCheckBox(this, "useFilter", texts.Get(Text::FilterUse), values.useFilter);
    auto *const page = new QWidget(this);
    auto *const rows = new QGridLayout(page);
    const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth);
    rows->setContentsMargins(indent, 0, 0, 0);
    rows->setColumnStretch(1, 1);
    rows->setColumnStretch(3, 1);
    auto *const numbers = new QGridLayout; // Columns of its own: its captions are longer than those below.
    numbers->setColumnStretch(3, 1);
    AddNumber(*numbers, page, "miniValue", Text::FilterMinimum, values.useMinimum, values.minimum);
    AddNumber(*numbers, page, "maxValue", Text::FilterMaximum, values.useMaximum, values.maximum);
    rows->addLayout(numbers, 0, 0, 1, 4);
    if (addFields) {
        addFields(*rows, page);
    }
    AddText(*rows, page, 0, "lang1", Text::FilterLanguage1, values.language1);
    AddText(*rows, page, 2, "lang2", Text::FilterLanguage2, values.language2);
    AddText(*rows, page, 0, "author", Text::FilterAuthor, values.author);
    AddText(*rows, page, 2, "comments", Text::FilterComments, values.comments);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(use);
    layout->addWidget(page);
    page->setEnabled(values.useFilter);
    connect(use, &QCheckBox::toggled, page, &QWidget::setEnabled);
}

void CFileFilterFields::AddNumber(
    QGridLayout &rows, QWidget *page, const char *name, int caption, bool &use, int &value)
{
    const QByteArray checkName = QByteArray(name) + "Use";
    QCheckBox *const check = MakeCheckBox(page, checkName.constData(), m_texts.Get(caption), use);
    CNumberField *const number = MakeNumber(page, name, {1, std::numeric_limits<int>::max()}, value);
    number->setAccessibleName(CaptionReadOut(check->text()));
    QLabel *const unit = MakeLabel(m_texts.Get(Text::FilterEntries), page);
    const QList<QWidget *> field = {number, unit};
    const int row = rows.rowCount();
    rows.addWidget(check, row, 0);
    rows.addWidget(number, row, 1);
    rows.addWidget(unit, row, 2);
    SetAllEnabled(field, use);
    connect(check, &QCheckBox::toggled, page, [field](bool checked) { SetAllEnabled(field, checked); });
}

void CFileFilterFields::AddText(
    QGridLayout &rows, QWidget *page, int column, const char *name, int caption, QString &value)
{
    CLongLineEdit *const field = MakeTextField(page, name, m_texts.Get(Text::LongText), value);
    field->setMinimumWidth(fontMetrics().averageCharWidth() * 10);
    QLabel *const label = MakeLabel(m_texts.Get(caption), page);
    label->setBuddy(field);
    field->setAccessibleName(CaptionReadOut(label->text()));
    const int row = column == 0 ? rows.rowCount() : rows.rowCount() - 1;
    rows.addWidget(label, row, column);
    rows.addWidget(field, row, column + 1);
}
