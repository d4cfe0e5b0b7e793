// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class CTexts;
class IUserPrompt;

/// Opens the help of the language in force, which is looked for in the data folders; says so when it can't be
/// opened. `open` opens a file in the program that the desktop has for it.
void OpenHelp(const CTexts &texts, const QStringList &dataFolders, IUserPrompt &prompt,
    const std::function<bool(const QString &path)> &open);
