// SPDX-License-Identifier: MIT
#include "platform/ui/file_dialog_chooser.h"

#include "platform/ui/owner_window.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

struct Chosen
{
    QStringList paths = {}; ///< Empty when none was.
    qsizetype filter = 0;
};

/// The usual suffix of files that a filter shows, without a dot: "csv" of "Text (*.csv *.tsv)". Empty where it
/// shows all.
QString SuffixOfFilter(const QString &filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\(\\*\\.([^ )*]+)[^()]*\\)$"));
    return pattern.match(filter).captured(1);
}

Chosen Choose(const FileChoice &choice, QFileDialog::AcceptMode mode, QFileDialog::FileMode fileMode)
{
    QFileDialog dialog(OwnerWindow(), choice.title);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(fileMode);
    dialog.setOption(QFileDialog::ShowDirsOnly, fileMode == QFileDialog::Directory);
    dialog.setNameFilters(choice.filters);
    dialog.setDefaultSuffix(choice.defaultSuffix);
    if (!choice.defaultSuffix.isEmpty()) {
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &filter) {
            const QString suffix = SuffixOfFilter(filter);
            dialog.setDefaultSuffix(suffix.isEmpty() ? choice.defaultSuffix : suffix);
        });
    }
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
    return {
        dialog.selectedFiles(), std::max<qsizetype>(choice.filters.indexOf(dialog.selectedNameFilter()), 0)};
}

}

QString CFileDialogChooser::ChooseFileToOpen(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptOpen, QFileDialog::ExistingFile).paths.value(0);
}

QStringList CFileDialogChooser::ChooseFilesToOpen(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptOpen, QFileDialog::ExistingFiles).paths;
}

QString CFileDialogChooser::ChooseFolder(const FileChoice &choice)
{
    return Choose(choice, QFileDialog::AcceptOpen, QFileDialog::Directory).paths.value(0);
}

ChosenFile CFileDialogChooser::ChooseFileToSave(const FileChoice &choice)
{
    const Chosen chosen = Choose(choice, QFileDialog::AcceptSave, QFileDialog::AnyFile);
    return {chosen.paths.value(0), chosen.filter};
}
