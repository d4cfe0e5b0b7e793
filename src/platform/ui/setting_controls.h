// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"

#include <QList>

#include <functional>

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
/// `items` are separated by line breaks; the value is the index of the one chosen.
QComboBox *MakeChoice(QWidget *page, const char *name, const QString &items, int &value);
CNumberField *MakeNumber(QWidget *page, const char *name, const NumberRange &range, int &value);
/// A button that gives the value `chosen`.
QRadioButton *MakeRadioButton(QWidget *page, const char *name, const QString &caption, int chosen, int &value);

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
