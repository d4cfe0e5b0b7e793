// SPDX-License-Identifier: MIT
#pragma once

#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// The bytes of a file; "unreadable" where it can't be read.
inline QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// Writes a file, with its folder where that is missing. Returns its path, or nothing when it failed.
inline QString WriteFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? path : QString();
}
