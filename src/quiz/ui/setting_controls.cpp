// SPDX-License-Identifier: MIT
#include "quiz/ui/setting_controls.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>

QCheckBox *makeCheckBox(QWidget *page, const char *name, const QString &caption, bool &value)
{
    auto *box = new QCheckBox(caption, page);
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(CaptionReadOut(caption));
    box->setChecked(value);
    QObject::connect(box, &QCheckBox::toggled, box, [&value](bool checked) { value = checked; });
    return box;
}

QComboBox *makeChoice(QWidget *page, const char *name, const QString &items, int &value)
{
    auto *choice = new QComboBox(page);
    choice->setObjectName(QLatin1StringView(name));
    choice->addItems(items.split(u'\n'));
    choice->setCurrentIndex(value);
    QObject::connect(choice, &QComboBox::currentIndexChanged, choice, [&value](int index) { value = index; });
    return choice;
}

QSpinBox *makeNumber(QWidget *page, const char *name, const CQuizSettingsForm::Range &range, int &value)
{
    auto *number = new QSpinBox(page);
    number->setObjectName(QLatin1StringView(name));
    number->setRange(range.lowest, range.highest);
    number->setValue(value);
    QObject::connect(number, &QSpinBox::valueChanged, number, [&value](int entered) { value = entered; });
    return number;
}

QRadioButton *makeRadioButton(QWidget *page, const char *name, const QString &caption, int chosen, int &value)
{
    auto *button = new QRadioButton(caption, page);
    button->setObjectName(QLatin1StringView(name));
    button->setAccessibleName(CaptionReadOut(caption));
    button->setChecked(value == chosen);
    QObject::connect(button, &QRadioButton::toggled, button, [&value, chosen](bool checked) {
        if (checked) {
            value = chosen;
        }
    });
    return button;
}

QLabel *makeExplanation(QWidget *page, const QString &text)
{
    return MakeWrappedLabel(text, page);
}

QList<QWidget *> addRow(QFormLayout &form, const QString &caption, QWidget *control, const QString &unit)
{
    QWidget *const page = control->parentWidget();
    QLabel *const label = MakeLabel(caption, page);
    label->setBuddy(control);
    control->setAccessibleName(CaptionReadOut(caption));
    auto *field = new QHBoxLayout;
    field->addWidget(control);
    QList<QWidget *> row = {label, control};
    if (!unit.isEmpty()) {
        row.append(makeExplanation(page, unit));
        field->addWidget(row.last());
    }
    field->addStretch(1);
    form.addRow(label, field);
    return row;
}

void setAllEnabled(const QList<QWidget *> &widgets, bool enabled)
{
    for (QWidget *const widget : widgets) {
        widget->setEnabled(enabled);
    }
}
