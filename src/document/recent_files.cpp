// SPDX-License-Identifier: MIT
#include "document/recent_files.h"

#include "platform/file_name.h"
#include "settings/settings_store.h"

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
