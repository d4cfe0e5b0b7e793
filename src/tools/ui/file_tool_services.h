// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class CTexts;
class CWin32Doc;
class IFileChooser;
class IUserPrompt;
struct FileSearchSettings;
struct ImportSettings;

/// What the windows of import and file search are handed; none of it is owned.
struct FileToolServices
{
    CWin32Doc &document;
    ImportSettings &import;
    FileSearchSettings &fileSearch;
    const CTexts &texts;
    IUserPrompt &prompt;
    IFileChooser &chooser;
    /// Opens the help at a section, by the name of its anchor.
    std::function<void(const QString &section)> openHelp;
};
