// SPDX-License-Identifier: MIT
#include "platform/ui/file_dialog_chooser.h"

#include "platform/ui/owner_window.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

ChosenFile Choose(const FileChoice &choice, QFileDialog::AcceptMode mode, QFileDialog::FileMode fileMode)
{
    QFileDialog dialog(OwnerWindow(), choice.title);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(fileMode);
    dialog.setNameFilters(choice.filters);
    dialog.setDefaultSuffix(choice.defaultSuffix);
    const QFileInfo start(choice.start);
    if (start.isDir()) {
        dialog.setDirectory(choice.start);
    } else {
        dialog.setDirectory(start.path());
        dialog.selectFile(start.fileName());
    }
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return {dialog.selectedFiles().value(0),
        std::max<qsizetype>(choice.filters.indexOf(dialog.selectedNameFilter()), 0)};
}

}

QString CFileDialogChooser::ChooseFileToOpen(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptOpen, QFileDialog::ExistingFile).path;
}

ChosenFile CFileDialogChooser::ChooseFileToSave(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptSave, QFileDialog::AnyFile);
}
