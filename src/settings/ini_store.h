// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settings_store.h"

#include <QSet>
#include <QSettings>

/// Keeps settings in an ini file, sections as its groups. Edited by hand it never breaks anything: a text with
/// commas is taken as it reads. The file is replaced as a whole; of two running copies the last to write wins.
class CIniStore : public ISettingsStore
{
public:
    /// `root` is the path of sections that the file stands for; the sections below it are its groups.
    CIniStore(const QString &path, const QString &root);
    /// "Ornbury Workshops/Ordelin.ini" in the user's configuration folder.
    static QString UserPath();

    void CreateSection(const QString &section) override;
    bool HasSection(const QString &section) const override;
    std::optional<QString> Read(const QString &section, const QString &name) const override;
    void Write(const QString &section, const QString &name, const QString &value) override;
    void Remove(const QString &section, const QString &name) override;
    void Flush() override;

private:
    QString Key(const QString &section, const QString &name) const;

    QSettings m_file;
    QString m_root;
    QSet<QString> m_known; // Sections that are known to exist.
};
