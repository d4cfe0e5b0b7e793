// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class ISettingsStore;

/// The files opened or saved last, newest first. Kept in the settings store; changed by every open and save.
class CRecentFiles
{
public:
    static constexpr int Most = 4;

    /// Loads the list; the store is not owned. `root` is the path below which the list has its section.
    CRecentFiles(ISettingsStore &store, const QString &root);

    const QStringList &Paths() const { return m_paths; }
    /// Puts a file first, by its absolute path.
    void Add(const QString &path);
    void Remove(const QString &path);
    /// The names of the files, for people: with as much of its folder as it takes to tell a file from others of
    /// the same name.
    QStringList Names() const;

private:
    void Save();

    ISettingsStore &m_store;
    QString m_section;
    QStringList m_paths;
};
