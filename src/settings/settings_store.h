// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

/// Where settings are kept between runs: sections of named values, each value a text. Sections are paths with
/// "\" between their parts. What can't be read is missing.
class ISettingsStore
{
public:
    ISettingsStore() = default;
    virtual ~ISettingsStore() = default;
    ISettingsStore(const ISettingsStore &) = delete;
    ISettingsStore &operator=(const ISettingsStore &) = delete;

    /// Makes a section exist, also when it stays empty.
    virtual void CreateSection(const QString &section) = 0;
    virtual bool HasSection(const QString &section) const = 0;
    virtual std::optional<QString> Read(const QString &section, const QString &name) const = 0;
    virtual void Write(const QString &section, const QString &name, const QString &value) = 0;
    virtual void Remove(const QString &section, const QString &name) = 0;
    /// Brings what was written to where it lasts, all of it or nothing. Returns false when that failed; the
    /// next call tries again.
    virtual bool Flush() = 0;
};

/// Keeps settings for as long as it lives.
class CMemoryStore : public ISettingsStore
{
public:
    void CreateSection(const QString &section) override { m_sections[section]; }
    bool HasSection(const QString &section) const override { return m_sections.contains(section); }
    std::optional<QString> Read(const QString &section, const QString &name) const override;
    void Write(const QString &section, const QString &name, const QString &value) override;
    void Remove(const QString &section, const QString &name) override;
    bool Flush() override { return true; }
    /// Values by name by section.
    const QMap<QString, QMap<QString, QString>> &Sections() const { return m_sections; }

private:
    QMap<QString, QMap<QString, QString>> m_sections;
};
