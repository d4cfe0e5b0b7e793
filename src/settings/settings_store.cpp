// SPDX-License-Identifier: MIT
#include "settings/settings_store.h"

std::optional<QString> CMemoryStore::Read(const QString &section, const QString &name) const
{
    const auto values = m_sections.value(section);
    const auto found = values.constFind(name);
    return found == values.constEnd() ? std::nullopt : std::optional(*found);
}

void CMemoryStore::Write(const QString &section, const QString &name, const QString &value)
{
    m_sections[section].insert(name, value);
}

void CMemoryStore::Remove(const QString &section, const QString &name)
{
    m_sections[section].remove(name);
}
