// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"

#include <QList>

#include <functional>

class CLongLineEdit;
class CNumberField;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QString;
class QWidget;

// The controls of pages of settings. Each shows a value and keeps it up to date; the value must outlive it.
// `name` is the control's object name. Explanations are made by MakeWrappedLabel().

QCheckBox *MakeCheckBox(QWidget *page, const char *name, const QString &caption, bool &value);
/// Has screen readers say the item chosen, which they don't find in a list that is closed. To be called anew
/// where it changes without a signal.
void ReadOutItem(QComboBox &choice);
/// `items` are separated by line breaks; `choose` gets the index of the one chosen.
QComboBox *MakeChoice(
    QWidget *page, const char *name, const QString &items, int current, const std::function<void(int)> &choose);
/// The value, a number or one of an enumeration, is the index of the item chosen.
template<class Value>
QComboBox *MakeChoice(QWidget *page, const char *name, const QString &items, Value &value)
{
    return MakeChoice(page, name, items, int(value), [&value](int index) { value = Value(index); });
}
/// A line for a text of any length. `hint` is its tool tip while not all of it is shown.
CLongLineEdit *MakeTextField(QWidget *page, const char *name, const QString &hint, QString &value);
CNumberField *MakeNumber(QWidget *page, const char *name, const NumberRange &range, int &value);
QRadioButton *MakeRadioButton(
    QWidget *page, const char *name, const QString &caption, bool checked, const std::function<void()> &choose);
/// A button that gives the value `chosen`.
template<class Value>
QRadioButton *MakeRadioButton(
    QWidget *page, const char *name, const QString &caption, Value chosen, Value &value)
{
    return MakeRadioButton(page, name, caption, value == chosen, [&value, chosen] { value = chosen; });
}

/// A field for the name of a file, and the button beside it that lets the user choose one.
struct FileField
{
    QLineEdit *name;
    QPushButton *browse;
};
/// `browse` is given what stands in the field and returns what is to stand there.
FileField MakeFileField(QWidget *page, const char *name, const QString &readOut, const QString &browseCaption,
    QString &value, const std::function<QString(const QString &)> &browse);

/// Adds a row of caption, control and the unit behind it, and returns all three or two widgets.
QList<QWidget *> AddRow(QFormLayout &form, const QString &caption, QWidget *control, const QString &unit = {});

void SetAllEnabled(const QList<QWidget *> &widgets, bool enabled);
