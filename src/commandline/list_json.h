// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QString>

/// The array as text with line breaks. Whatever a terminal could take for a command is written as an escape.
QString JsonText(const QJsonArray &array);
