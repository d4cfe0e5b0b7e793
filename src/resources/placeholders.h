// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What becomes of a text whose placeholders are filled.
enum class FilledFor {
    Screen, ///< Each value is shown in its own writing direction and turns nothing beside it round.
    Storage ///< The values as they are: for files and their names, the clipboard, comparisons and terminals.
};

/// A placeholder, as it stands in a text, and what takes its place.
struct Placeholder
{
    QString name;
    QString value;
};

/// Fills each "%s", and "%d" likewise, of `format` with the next value, and turns "%%" into "%", in one pass:
/// what stands in a value is never filled or turned. A placeholder without a value becomes empty.
QString FillText(const QString &format, const QStringList &values, FilledFor use);

/// Fills all placeholders in one pass: what stands in a value is never filled.
QString FillPlaceholders(const QString &format, const QList<Placeholder> &placeholders, FilledFor use);

/// Fills one placeholder after the other: those that a value brings in are filled by the ones that follow.
QString FillInOrder(const QString &format, const QList<Placeholder> &placeholders, FilledFor use);
