// SPDX-License-Identifier: MIT
#pragma once

#include "settings/registry_settings.h"

#include <QStringList>

#include <array>

// One plain struct per section. Visit() is its table: each line is a setting's name, its bounds and its factory
// value, in the order in which settings are exchanged. A new struct has the factory values; texts whose factory
// value is a numbered text are empty until CAppSettings fills them.

/// Puts every setting that it visits to its factory value.
class CFactoryValues
{
public:
    static constexpr int None = CRegistrySettings::NO_BOUND;

    void Flag(const char * /*name*/, bool &value, bool factory) { value = factory; }
    void Integer(const char * /*name*/, int &value, int /*lower*/, int /*upper*/, int factory)
    {
        value = factory;
    }
    /// One of an enumeration's values from 0 to `last`.
    template<class Enumeration>
    void Choice(const char * /*name*/, Enumeration &value, Enumeration /*last*/, Enumeration factory)
    {
        value = factory;
    }
    void Color(const char * /*name*/, quint32 &value, quint32 factory) { value = factory; }
    void Text(
        const char * /*name*/, QString &value, const char *factory, const char * /*otherSection*/ = nullptr)
    {
        value = QString::fromLatin1(factory);
    }
    virtual void NumberedText(const char * /*name*/, QString &value, int /*textNumber*/) { value.clear(); }
    void List(const char * /*name*/, QStringList &value) { value.clear(); }
    /// Settings without a factory value.
    void KeptFlag(const char * /*name*/, bool & /*value*/) { }
    void KeptText(const char * /*name*/, QString & /*value*/) { }

    CFactoryValues() = default;
    virtual ~CFactoryValues() = default;
    CFactoryValues(const CFactoryValues &) = delete;
    CFactoryValues &operator=(const CFactoryValues &) = delete;
};

template<class Section>
void SetFactoryValues(Section &section)
{
    CFactoryValues values;
    section.Visit(values);
}
