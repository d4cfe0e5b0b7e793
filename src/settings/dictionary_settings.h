// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

/// Translations that are offered while entries are typed.
struct DictionarySettings
{
    bool suggest;
    QString folder; ///< Where the dictionaries are; empty for the places where the system has them.
    QStringList chosen; ///< See CDictionaryChoices.

    DictionarySettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Flag("suggest", suggest, true);
        visit.Text("folder", folder, "");
        visit.List("chosen", chosen);
    }
};
