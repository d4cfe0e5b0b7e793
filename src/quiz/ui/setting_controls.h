// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/quiz_settings_form.h"

#include <QList>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QRadioButton;
class QSpinBox;
class QWidget;

// The controls of the pages of settings. Each shows a value and keeps it up to date; the value must outlive it.

QCheckBox *makeCheckBox(QWidget *page, const char *name, const QString &caption, bool &value);
/// `items` are separated by line breaks; the value is the index of the one chosen.
QComboBox *makeChoice(QWidget *page, const char *name, const QString &items, int &value);
QSpinBox *makeNumber(QWidget *page, const char *name, const CQuizSettingsForm::Range &range, int &value);
/// A button that gives the value `chosen`.
QRadioButton *makeRadioButton(QWidget *page, const char *name, const QString &caption, int chosen, int &value);

/// A line that explains what follows.
QLabel *makeExplanation(QWidget *page, const QString &text);
/// Adds a row of caption, control and the unit behind it, and returns all three or two widgets.
QList<QWidget *> addRow(QFormLayout &form, const QString &caption, QWidget *control, const QString &unit = {});

void setAllEnabled(const QList<QWidget *> &widgets, bool enabled);
