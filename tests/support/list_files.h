// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/word_list_file.h"
#include "support/lists.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// A folder of its own with files in it.
class CListFiles
{
public:
    QString Path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    /// A glossary file; folders in its name are made. Properties are the languages, the author and the
    /// comments, with "|" between them.
    QString AddList(const QString &name, const QStringList &entries,
        const QString &properties = QStringLiteral("Svenska|Engelska")) const
    {
        CWordList list = MakeList(entries);
        const QStringList parts = properties.split(u'|');
        list.SetProperties({.language1 = parts.value(0),
            .language2 = parts.value(1),
            .author = parts.value(2),
            .comments = parts.value(3)});
        MakeFolderOf(name);
        if (!WriteWordListFile(list, Path(name))) {
            qFatal("%s can't be written", qPrintable(name));
        }
        return Path(name);
    }
    QString AddFile(const QString &name, const QByteArray &content) const
    {
        MakeFolderOf(name);
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("%s can't be written", qPrintable(name));
        }
        return Path(name);
    }

private:
    void MakeFolderOf(const QString &name) const { QDir().mkpath(QFileInfo(Path(name)).path()); }

    QTemporaryDir m_folder;
};

/// Entries "prefix0|x0" and so on.
inline QStringList ManyEntries(const QString &prefix, int count)
{
    QStringList entries;
    for (int i = 0; i < count; ++i) {
        entries.append(prefix + QStringLiteral("%1|x%1").arg(i));
    }
    return entries;
}
