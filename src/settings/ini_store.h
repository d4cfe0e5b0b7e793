// SPDX-License-Identifier: MIT
#pragma once

#include "settings/ini_text.h"
#include "settings/settings_store.h"

#include <QMap>

#include <optional>

/// Keeps settings in an ini file, sections as its groups. Edited by hand it never breaks anything: a text with
/// commas is taken as it reads. Flush() writes what was changed here into what the file holds by then and
/// replaces the file as a whole; of two running copies that change the same value the last to write wins.
class CIniStore : public ISettingsStore
{
public:
    /// Reads the file, if it is a regular one. `root` is the path of sections that the file stands for; the
    /// sections below it are its groups.
    CIniStore(QString path, QString root);
    /// Writes what was not yet written.
    ~CIniStore() override { CIniStore::Flush(); }
    /// "Ornbury Workshops/Ordelin.ini" in the user's configuration folder.
    static QString UserPath();

    const QString &Path() const { return m_path; }
    void CreateSection(const QString &section) override;
    bool HasSection(const QString &section) const override;
    std::optional<QString> Read(const QString &section, const QString &name) const override;
    void Write(const QString &section, const QString &name, const QString &value) override;
    void Remove(const QString &section, const QString &name) override;
    bool Flush() override;

private:
    QString Key(const QString &section, const QString &name) const;
    void Change(const QString &key, const std::optional<QString> &value);

    QString m_path;
    QString m_root;
    IniValues m_values;
    QMap<QString, std::optional<QString>> m_changes; // Since the last Flush(); none for a value removed.
};
