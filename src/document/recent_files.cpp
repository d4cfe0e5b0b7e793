// SPDX-License-Identifier: MIT
#include "document/recent_files.h"

#include "platform/file_name.h"
#include "settings/settings_store.h"

#include <QFileInfo>

#include <algorithm>

namespace {

QString ValueName(int index)
{
    return QStringLiteral("File%1").arg(index + 1);
}

}

CRecentFiles::CRecentFiles(ISettingsStore &store, const QString &root)
    : m_store(store), m_section(root + QStringLiteral("\\Recent File List"))
{
    for (int i = 0; i < Most; ++i) {
        const QString path = m_store.Read(m_section, ValueName(i)).value_or(QString());
        if (!path.isEmpty()) {
            m_paths.append(path);
        }
    }
}

void CRecentFiles::Add(const QString &path)
{
    const QString absolute = AbsoluteFilePath(path);
    m_paths.removeAll(absolute);
    m_paths.prepend(absolute);
    m_paths = m_paths.mid(0, Most);
    Save();
}

void CRecentFiles::Remove(const QString &path)
{
    m_paths.removeAll(path);
    Save();
}

QStringList CRecentFiles::Names() const
{
    // The last folders of a path, `depth` of them.
    const auto folders = [](const QString &path, int depth) {
        return path.section(u'/', -1 - depth, -2, QString::SectionSkipEmpty);
    };
    QStringList names;
    for (const QString &path : m_paths) {
        QString name = QFileInfo(path).fileName();
        QStringList others = m_paths;
        others.removeAll(path);
        const auto isOfThatName = [&](const QString &other) { return QFileInfo(other).fileName() == name; };
        if (std::ranges::any_of(others, isOfThatName)) {
            int depth = 1;
            const auto isTold = [&](const QString &other) {
                return !isOfThatName(other) || folders(other, depth) != folders(path, depth);
            };
            while (depth < path.count(u'/') && !std::ranges::all_of(others, isTold)) {
                ++depth;
            }
            const QString told = folders(path, depth);
            name = QStringLiteral("%1 (%2)").arg(name, told.isEmpty() ? QStringLiteral("/") : told);
        }
        names.append(name);
    }
    return names;
}

void CRecentFiles::Save()
{
    for (int i = 0; i < Most; ++i) {
        if (i < m_paths.size()) {
            m_store.Write(m_section, ValueName(i), m_paths.at(i));
        } else {
            m_store.Remove(m_section, ValueName(i));
        }
    }
    m_store.Flush();
}
