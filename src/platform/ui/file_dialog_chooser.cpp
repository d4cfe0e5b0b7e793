// SPDX-License-Identifier: MIT
#include "platform/ui/file_dialog_chooser.h"

#include "platform/ui/owner_window.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

QString Choose(const FileChoice &choice, QFileDialog::AcceptMode mode, QFileDialog::FileMode fileMode,
    qsizetype *filter = nullptr)
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
    const bool chosen = dialog.exec() == QDialog::Accepted;
    if (filter != nullptr) {
        *filter = std::max<qsizetype>(choice.filters.indexOf(dialog.selectedNameFilter()), 0);
    }
    return chosen ? dialog.selectedFiles().value(0) : QString();
}

}

QString CFileDialogChooser::ChooseFileToOpen(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptOpen, QFileDialog::ExistingFile);
}

QString CFileDialogChooser::ChooseFileToSave(const FileChoice &choice, qsizetype *filter)
{
    return Choose(choice, QFileDialog::AcceptSave, QFileDialog::AnyFile, filter);
}
