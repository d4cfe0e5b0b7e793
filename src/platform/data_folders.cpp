// SPDX-License-Identifier: MIT
#include "platform/data_folders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

QStringList DataFolders(const QString &programFolder)
{
    QStringList folders = {
        QDir::cleanPath(programFolder), QDir::cleanPath(programFolder + QStringLiteral("/../share/ordelin"))};
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        folders.append(QDir::cleanPath(folder + QStringLiteral("/ordelin")));
    }
    folders.removeDuplicates();
    return folders;
}

QString FindDataFile(const QStringList &folders, const QString &path)
{
    const QString relative = QDir::cleanPath(path);
    if (path.isEmpty() || QDir::isAbsolutePath(relative) || relative.startsWith(QStringLiteral(".."))) {
        return {};
    }
    for (const QString &folder : folders) {
        const QString file = folder + u'/' + relative;
        if (QFileInfo(file).isFile()) {
            return file;
        }
    }
    return {};
}
