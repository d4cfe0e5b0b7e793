// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

class QUrl;

// File names are bytes to the system, and need not be text. A byte that belongs to no UTF-8 character stands in
// a QString as a lone surrogate, U+DC80 to U+DCFF, so that every file has a name here and is found by it again.
// The toolkit's own file functions don't know these names: who opens what a user names uses the functions of
// this folder.

/// The name that the system knows as `bytes`.
QString DecodeFileName(QByteArrayView bytes);
/// The bytes by which the system knows the file; the inverse of DecodeFileName().
QByteArray EncodeFileName(QStringView name);
/// The file of a file: URL; empty for any other URL.
QString LocalFileOf(const QUrl &url);
/// Those of them that are files.
QStringList LocalFilesOf(const QList<QUrl> &urls);
/// The file's name from the root on, cleaned of "." and "..". Links stay.
QString AbsoluteFilePath(const QString &path);
/// Whether there is something of this name, or at the end of the link of this name.
bool FileExists(const QString &path);
/// Whether there is a folder of this name, or at the end of the link of this name.
bool IsFolder(const QString &path);
/// Whether both are there and name the same file, by links of either kind or not.
bool IsSameFile(const QString &path, const QString &other);
