// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settings_store.h"

/// Passes on what a store holds, and drops what is written. The store is not owned.
class CReadOnlyStore : public ISettingsStore
{
public:
    explicit CReadOnlyStore(const ISettingsStore &store) : m_store(store) { }

    void CreateSection(const QString & /*section*/) override { }
    bool HasSection(const QString &section) const override { return m_store.HasSection(section); }
    std::optional<QString> Read(const QString &section, const QString &name) const override
    {
        return m_store.Read(section, name);
    }
    void Write(const QString & /*section*/, const QString & /*name*/, const QString & /*value*/) override { }
    void Remove(const QString & /*section*/, const QString & /*name*/) override { }
    bool Flush() override { return true; }

private:
    const ISettingsStore &m_store;
};
