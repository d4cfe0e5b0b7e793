// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settings_store.h"

/// One place in the store: the section selected last below a root path.
class CRegistryKey
{
public:
    /// The store is not owned.
    CRegistryKey(ISettingsStore &store, const QString &root);

    /// Moves to a section below the root, or to the root itself for an empty name, and makes it exist.
    void SelectSection(const QString &name);
    bool Exists(const QString &name) const { return Read(name).has_value(); }
    std::optional<QString> Read(const QString &name) const { return m_store.Read(m_path, name); }
    void Write(const QString &name, const QString &value) { m_store.Write(m_path, name, value); }
    void Remove(const QString &name) { m_store.Remove(m_path, name); }
    void Flush() { m_store.Flush(); }

private:
    ISettingsStore &m_store;
    QString m_root;
    QString m_path;
};

/// Settings that are loaded from and saved to a store, value by value.
class CRegistrySettings
{
public:
    /// No bound on that side of a number.
    static constexpr int NO_BOUND = 0x3FFFFFFF;

    explicit CRegistrySettings(ISettingsStore &store);
    virtual ~CRegistrySettings() = default;
    CRegistrySettings(const CRegistrySettings &) = delete;
    CRegistrySettings &operator=(const CRegistrySettings &) = delete;

    /// Loads or saves every setting.
    virtual void Exchange(bool load) = 0;
    /// The root path of all sections, without a backslash at either end.
    virtual QString GetRegistryPath() const = 0;

    /// Each selects the section first. Loading leaves the member alone when the value is missing, is no number
    /// where one is meant, or lies outside the bounds; saving knows no bounds.
    void ExchangeBool(bool load, bool &member, const QString &section, const QString &name);
    void ExchangeInt(bool load, int &member, const QString &section, const QString &name, int lower, int upper);
    /// 0x00BBGGRR
    void ExchangeColor(bool load, quint32 &member, const QString &section, const QString &name);
    void ExchangeString(bool load, QString &member, const QString &section, const QString &name);

protected:
    CRegistryKey &Key();

private:
    ISettingsStore &m_store;
    std::optional<CRegistryKey> m_key; // Made at its first use, since the root path is virtual.
};
