// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The folders that may hold what comes with the program (language modules, help, sounds), in the order in
/// which they are looked through: the program's own, the data folder of where it is installed, and the data
/// folders of the user and the system (XDG base directories). None of them need exist.
QStringList DataFolders(const QString &programFolder);

/// The first regular file of that relative path in the folders; empty when there is none, or when the path
/// leads out of a folder.
QString FindDataFile(const QStringList &folders, const QString &path);
