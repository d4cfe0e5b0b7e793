// SPDX-License-Identifier: MIT
#include "settings/registry_settings.h"

CRegistryKey::CRegistryKey(ISettingsStore &store, const QString &root)
    : m_store(store), m_root(root), m_path(root)
{
}

void CRegistryKey::SelectSection(const QString &name)
{
    m_path = name.isEmpty() || m_root.isEmpty() ? m_root + name : m_root + u'\\' + name;
    m_store.CreateSection(m_path);
}

CRegistrySettings::CRegistrySettings(ISettingsStore &store) : m_store(store) { }

CRegistryKey &CRegistrySettings::Key()
{
    if (!m_key) {
        m_key.emplace(m_store, GetRegistryPath());
    }
    return *m_key;
}

void CRegistrySettings::ExchangeBool(bool load, bool &member, const QString &section, const QString &name)
{
    int number = int(member);
    ExchangeInt(load, number, section, name, NO_BOUND, NO_BOUND);
    member = number != 0;
}

void CRegistrySettings::ExchangeInt(
    bool load, int &member, const QString &section, const QString &name, int lower, int upper)
{
    Key().SelectSection(section);
    if (!load) {
        Key().Write(name, QString::number(member));
        return;
    }
    bool isNumber = false;
    const int value = Key().Read(name).value_or(QString()).trimmed().toInt(&isNumber);
    const bool tooLow = lower != NO_BOUND && value < lower;
    const bool tooHigh = upper != NO_BOUND && value > upper;
    if (isNumber && !tooLow && !tooHigh) {
        member = value;
    }
}

void CRegistrySettings::ExchangeColor(bool load, quint32 &member, const QString &section, const QString &name)
{
    Key().SelectSection(section);
    if (!load) {
        Key().Write(name, QString::number(member));
        return;
    }
    bool isNumber = false;
    const quint32 value = Key().Read(name).value_or(QString()).trimmed().toUInt(&isNumber);
    if (isNumber) {
        member = value;
    }
}

void CRegistrySettings::ExchangeString(bool load, QString &member, const QString &section, const QString &name)
{
    Key().SelectSection(section);
    if (load) {
        member = Key().Read(name).value_or(member);
    } else {
        Key().Write(name, member);
    }
}
