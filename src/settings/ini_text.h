// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// Values by their keys "section/name"; without a slash they stand before the first section.
using IniValues = QMap<QString, QString>;

// The text of an ini file, UTF-8, in the toolkit's form: "[section]", "name=value"; in sections and names "\"
// for a slash and %XX or %UXXXX for all but letters, digits, "_", "-" and "."; values in quotes where need be,
// with the escapes of C.

/// Takes any text: what is no line of its form is left out, and of two values of a key the later one counts.
/// Commas outside quotes are taken as they read.
IniValues ParseIni(QByteArrayView text);
QByteArray FormatIni(const IniValues &values);
