// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QFormLayout;
class QLabel;
class QString;
class QWidget;

/// The one way to make a label. Its text is plain text, whatever stands in it.
QLabel *MakeLabel(const QString &text, QWidget *parent);
/// The same for longer texts, which may take several lines.
QLabel *MakeWrappedLabel(const QString &text, QWidget *parent);
/// Adds a row of a label and the control that it names, also for assistive technology. Returns the label.
QLabel *AddLabelledRow(QFormLayout &form, const QString &caption, QWidget *control);

/// While it lives, no label and no tool tip of the program takes a text for markup, nor do those that the
/// toolkit makes for its own windows. One is enough; it is an event filter of the application.
class CPlainTextRule : public QObject
{
public:
    CPlainTextRule();

    bool eventFilter(QObject *watched, QEvent *event) override;
};
