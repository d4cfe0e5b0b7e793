// SPDX-License-Identifier: MIT
#include "platform/ui/setting_controls.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/number_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

QCheckBox *MakeCheckBox(QWidget *page, const char *name, const QString &caption, bool &value)
{
    auto *box = new QCheckBox(caption, page);
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(CaptionReadOut(caption));
    box->setChecked(value);
    QObject::connect(box, &QCheckBox::toggled, box, [&value](bool checked) { value = checked; });
    return box;
}

void ReadOutItem(QComboBox &choice)
{
    choice.setAccessibleDescription(choice.currentText());
}

QComboBox *MakeChoice(
    QWidget *page, const char *name, const QString &items, int current, const std::function<void(int)> &choose)
{
    auto *choice = new QComboBox(page);
    choice->setObjectName(QLatin1StringView(name));
    choice->addItems(items.split(u'\n'));
    choice->setCurrentIndex(current);
    ReadOutItem(*choice);
    QObject::connect(choice, &QComboBox::currentIndexChanged, choice, [choice, choose](int index) {
        ReadOutItem(*choice);
        choose(index);
    });
    return choice;
}

CLongLineEdit *MakeTextField(QWidget *page, const char *name, const QString &hint, QString &value)
{
    auto *field = new CLongLineEdit(hint, page);
    field->setObjectName(QLatin1StringView(name));
    field->SetWholeText(value);
    field->setMinimumWidth(page->fontMetrics().averageCharWidth() * 45);
    field->setCursorPosition(0);
    QObject::connect(
        field, &CLongLineEdit::textChanged, field, [field, &value] { value = field->WholeText(); });
    return field;
}

CNumberField *MakeNumber(QWidget *page, const char *name, const NumberRange &range, int &value)
{
    auto *number = new CNumberField(range, value, page);
    number->setObjectName(QLatin1StringView(name));
    QObject::connect(number, &CNumberField::NumberEntered, number, [&value](int entered) { value = entered; });
    return number;
}

QRadioButton *MakeRadioButton(
    QWidget *page, const char *name, const QString &caption, bool checked, const std::function<void()> &choose)
{
    auto *button = new QRadioButton(caption, page);
    button->setObjectName(QLatin1StringView(name));
    button->setAccessibleName(CaptionReadOut(caption));
    button->setChecked(checked);
    QObject::connect(button, &QRadioButton::toggled, button, [choose](bool isChosen) {
        if (isChosen) {
            choose();
        }
    });
    return button;
}

FileField MakeFileField(QWidget *page, const char *name, const QString &readOut, const QString &browseCaption,
    QString &value, const std::function<QString(const QString &)> &browse)
{
    auto *file = new QLineEdit(value, page);
    file->setObjectName(QLatin1StringView(name));
    file->setAccessibleName(readOut);
    file->setMinimumWidth(page->fontMetrics().averageCharWidth() * 40);
    auto *button = new QPushButton(browseCaption, page);
    button->setObjectName(file->objectName() + QStringLiteral("Browse"));
    QObject::connect(file, &QLineEdit::textChanged, file, [&value](const QString &text) { value = text; });
    QObject::connect(
        button, &QPushButton::clicked, file, [file, browse] { file->setText(browse(file->text())); });
    return {file, button};
}

QList<QWidget *> AddRow(QFormLayout &form, const QString &caption, QWidget *control, const QString &unit)
{
    QWidget *const page = control->parentWidget();
    QLabel *const label = MakeLabel(caption, page);
    label->setBuddy(control);
    control->setAccessibleName(CaptionReadOut(caption));
    auto *field = new QHBoxLayout;
    field->addWidget(control);
    QList<QWidget *> row = {label, control};
    if (!unit.isEmpty()) {
        row.append(MakeLabel(unit, page));
        field->addWidget(row.last());
    }
    field->addStretch(1);
    form.addRow(label, field);
    return row;
}

void SetAllEnabled(const QList<QWidget *> &widgets, bool enabled)
{
    for (QWidget *const widget : widgets) {
        widget->setEnabled(enabled);
    }
}
