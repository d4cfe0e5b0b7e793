// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class QFile;

/// Opens a file for reading, without a buffer. Returns false for what is no regular file: a pipe or a device
/// may never end, and may hold up who opens it.
[[nodiscard]] bool OpenRegularFile(QFile &file, const QString &path);
/// The content of a regular file; none when it can't be read or is more than `most` bytes.
std::optional<QByteArray> ReadRegularFile(const QString &path, qint64 most);
