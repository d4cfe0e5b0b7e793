// SPDX-License-Identifier: MIT
#include "settings/ini_store.h"

#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace {

/// An ini file has no empty sections; one that is to exist holds this value.
constexpr QLatin1StringView SectionMark("section");

}

CIniStore::CIniStore(const QString &path, const QString &root)
    : m_file(path, QSettings::IniFormat), m_root(root)
{
}

QString CIniStore::Key(const QString &section, const QString &name) const
{
    const QString group = section.startsWith(m_root + u'\\') ? section.mid(m_root.size() + 1) : QString();
    return group.isEmpty() ? name : QString(group).replace(u'\\', u'/') + u'/' + name;
}

QString CIniStore::UserPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Ornbury Workshops/Ordelin.ini");
}

void CIniStore::CreateSection(const QString &section)
{
    if (m_known.contains(section)) {
        return;
    }
    if (!HasSection(section)) {
        m_file.setValue(Key(section, SectionMark), 1);
    }
    m_known.insert(section);
}

bool CIniStore::HasSection(const QString &section) const
{
    const QString prefix = Key(section, {});
    const QStringList keys = m_file.allKeys();
    return std::any_of(keys.begin(), keys.end(), [&](const QString &key) { return key.startsWith(prefix); });
}

std::optional<QString> CIniStore::Read(const QString &section, const QString &name) const
{
    const QVariant value = m_file.value(Key(section, name));
    if (!value.isValid()) {
        return std::nullopt;
    }
    // An unquoted text with commas comes back as a list.
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QStringLiteral(", "))
                                                    : value.toString();
}

void CIniStore::Write(const QString &section, const QString &name, const QString &value)
{
    m_file.remove(Key(section, SectionMark));
    m_file.setValue(Key(section, name), value);
}

void CIniStore::Remove(const QString &section, const QString &name)
{
    m_file.remove(Key(section, name));
    m_known.remove(section);
    CreateSection(section);
}

void CIniStore::Flush()
{
    m_file.sync();
}
