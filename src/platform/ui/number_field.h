// SPDX-License-Identifier: MIT
#pragma once

#include "platform/number_range.h"

#include <QSpinBox>

/// A field for a number with arrows. Any number can be typed; one outside the range counts as the nearest end
/// of it, and is shown as such when the field is left or Enter is pressed.
class CNumberField : public QSpinBox
{
    Q_OBJECT

public:
    CNumberField(const NumberRange &range, int number, QWidget *parent = nullptr);

    /// What stands in the field, brought into the range; the last number while it is empty.
    int Entered() const;

    QValidator::State validate(QString &text, int &cursor) const override;
    void fixup(QString &text) const override;

Q_SIGNALS:
    /// With every key already: a window may be confirmed before the field is left.
    void NumberEntered(int number);
};
