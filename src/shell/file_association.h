// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class CTexts;
class IUserPrompt;

/// Runs one of the desktop's tools to its end. Returns false when it can't be run or fails.
using DesktopTool = std::function<bool(const QString &program, const QStringList &arguments)>;

/// Makes the program at `programPath`, an absolute path, the one that opens glossary files for this user, after
/// asking: writes desktop entry, file type and icons below `dataFolder`, the user's data folder, and has the
/// desktop's tools take them up. Returns true when at least the desktop entry was written.
bool AssociateGlossaryFiles(const QString &programPath, const QString &dataFolder, const CTexts &texts,
    IUserPrompt &prompt, const DesktopTool &run);
