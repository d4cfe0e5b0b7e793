// SPDX-License-Identifier: MIT
#pragma once

#include "shell/language_modules.h"

class IUserPrompt;
struct MiscSettings;

/// What the language dialog decides: it speaks the language of the row selected last that can be chosen.
class CLanguageChoice
{
public:
    /// `entries` begins with the program's own language; `loadedModule` is the file of the module in use.
    /// In a first run the language of the user's locale is preselected, else the one in use.
    CLanguageChoice(QList<LanguageEntry> entries, const QString &loadedModule, bool firstRun,
        const QString &userAbbreviation);

    const QList<LanguageEntry> &Entries() const { return m_entries; }
    QString RowText(int row) const;
    int Selected() const { return m_selected; }
    void Select(int row);

    /// The texts of the dialog.
    const LanguageEntry &Words() const { return m_entries.at(m_speaking); }
    /// The line below the list.
    QString Confirmation() const;
    bool CanAccept() const { return m_entries.at(m_selected).valid; }
    /// Notes the choice in the settings, and says that it holds from the next start unless this is the first.
    void Accept(MiscSettings &settings, IUserPrompt &prompt) const;

private:
    int Preselected(const QString &loadedModule, const QString &userAbbreviation) const;

    QList<LanguageEntry> m_entries;
    bool m_firstRun;
    int m_selected = 0;
    int m_speaking = 0; // The last selected row that is valid.
};
