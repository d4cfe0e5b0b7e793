// SPDX-License-Identifier: MIT
#include "settings/ini_store.h"

#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// An ini file has no empty sections; one that is to exist holds this value.
constexpr QLatin1StringView SectionMark("section");

constexpr qint64 LargestFile = 16 << 20; // Far more than any settings; in bytes.

/// None when there is a file that can't be read.
std::optional<IniValues> Load(const QString &path)
{
    if (const std::optional<QByteArray> text = ReadRegularFile(path, LargestFile)) {
        return ParseIni(*text);
    }
    return FileExists(path) ? std::nullopt : std::optional(IniValues());
}

bool Save(const QString &path, const IniValues &values)
{
    const QByteArray text = FormatIni(values);
    CSafeFile file;
    return QDir().mkpath(QFileInfo(path).path()) && file.Open(path) && file.Device().write(text) == text.size()
        && file.Commit();
}

}

CIniStore::CIniStore(QString path, QString root)
    : m_path(std::move(path)), m_root(std::move(root)), m_values(Load(m_path).value_or(IniValues()))
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

void CIniStore::Change(const QString &key, const std::optional<QString> &value)
{
    if (value && m_values.value(key) == *value && m_values.contains(key)) {
        return;
    }
    if (value) {
        m_values.insert(key, *value);
    } else if (m_values.remove(key) == 0) {
        return;
    }
    m_changes.insert(key, value);
}

void CIniStore::CreateSection(const QString &section)
{
    if (!HasSection(section)) {
        Change(Key(section, SectionMark), QStringLiteral("1"));
    }
}

bool CIniStore::HasSection(const QString &section) const
{
    const QString prefix = Key(section, {});
    const auto first = m_values.lowerBound(prefix);
    return first != m_values.cend() && first.key().startsWith(prefix);
}

std::optional<QString> CIniStore::Read(const QString &section, const QString &name) const
{
    const auto value = m_values.constFind(Key(section, name));
    return value == m_values.cend() ? std::nullopt : std::optional(*value);
}

void CIniStore::Write(const QString &section, const QString &name, const QString &value)
{
    Change(Key(section, SectionMark), std::nullopt);
    Change(Key(section, name), value);
}

void CIniStore::Remove(const QString &section, const QString &name)
{
    Change(Key(section, name), std::nullopt);
    CreateSection(section);
}

bool CIniStore::Flush()
{
    if (m_changes.isEmpty()) {
        return true;
    }
    std::optional<IniValues> values = Load(m_path);
    if (!values) {
        return false;
    }
    for (auto change = m_changes.cbegin(); change != m_changes.cend(); ++change) {
        if (*change) {
            values->insert(change.key(), **change);
        } else {
            values->remove(change.key());
        }
    }
    if (!Save(m_path, *values)) {
        return false;
    }
    m_values = *values;
    m_changes.clear();
    return true;
}
