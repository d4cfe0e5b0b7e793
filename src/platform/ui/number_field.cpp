// SPDX-License-Identifier: MIT
#include "platform/ui/number_field.h"

#include <QLineEdit>

#include <algorithm>
#include <optional>

namespace {

/// The number that is written there, however long; none for what is no number.
std::optional<int> NumberIn(const QString &text, const NumberRange &range)
{
    const QString written = text.trimmed();
    const bool negative = written.startsWith(u'-');
    const QStringView digits = QStringView(written).sliced(negative ? 1 : 0);
    const auto isDigit = [](QChar unit) { return unit >= u'0' && unit <= u'9'; };
    if (digits.isEmpty() || !std::ranges::all_of(digits, isDigit)) {
        return {};
    }
    // Not with the separators of thousands, which a range as ours doesn't need.
    bool fits = false;
    const int number = written.toInt(&fits);
    return fits ? range.Clamped(number) : negative ? range.lowest : range.highest;
}

}

CNumberField::CNumberField(const NumberRange &range, int number, QWidget *parent) : QSpinBox(parent)
{
    setLocale(QLocale::c()); // Its digits are the ones that are read.
    setRange(range.lowest, range.highest);
    setValue(number);
    const auto tell = [this] { Q_EMIT NumberEntered(Entered()); };
    connect(lineEdit(), &QLineEdit::textChanged, this, tell);
    connect(this, &QSpinBox::valueChanged, this, tell); // The arrows don't tell that they change the text.
}

int CNumberField::Entered() const
{
    return NumberIn(text(), {minimum(), maximum()}).value_or(value());
}

QValidator::State CNumberField::validate(QString &text, int &cursor) const
{
    const QValidator::State state = QSpinBox::validate(text, cursor);
    // What is still to be brought into the range may be typed.
    const bool begins = text.isEmpty() || text == u"-" || NumberIn(text, {minimum(), maximum()});
    return !begins ? QValidator::Invalid : state == QValidator::Invalid ? QValidator::Intermediate : state;
}

void CNumberField::fixup(QString &text) const
{
    if (const auto number = NumberIn(text, {minimum(), maximum()})) {
        text = textFromValue(*number);
    }
}
