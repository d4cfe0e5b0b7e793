// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_chooser.h"

/// Asks for files in the desktop's own dialogs, over the active window.
class CFileDialogChooser : public IFileChooser
{
public:
    QString ChooseFileToOpen(const FileChoice &choice) override;
    QStringList ChooseFilesToOpen(const FileChoice &choice) override;
    QString ChooseFolder(const FileChoice &choice) override;
    ChosenFile ChooseFileToSave(const FileChoice &choice) override;
};
