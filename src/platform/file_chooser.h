// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What a file dialog shows.
struct FileChoice
{
    QString title;
    /// In the toolkit's form: "Name (*.one *.two)".
    QStringList filters;
    /// The folder to start in, with or without a proposed file name.
    QString start;
    /// Added to a name that has no suffix, without the dot; none when empty.
    QString defaultSuffix = {};
};

/// The file that was chosen for saving.
struct ChosenFile
{
    QString path; ///< Empty when none was.
    qsizetype filter = 0; ///< Which of the choice's filters was in force.
};

/// Asks the user for a file. The one in tests answers by script. An empty path means that nothing was chosen.
class IFileChooser
{
public:
    IFileChooser() = default;
    virtual ~IFileChooser() = default;
    IFileChooser(const IFileChooser &) = delete;
    IFileChooser &operator=(const IFileChooser &) = delete;

    virtual QString ChooseFileToOpen(const FileChoice &choice) = 0;
    /// Several at once.
    virtual QStringList ChooseFilesToOpen(const FileChoice &choice) = 0;
    virtual QString ChooseFolder(const FileChoice &choice) = 0;
    /// Asks before an existing file is chosen.
    virtual ChosenFile ChooseFileToSave(const FileChoice &choice) = 0;
};
