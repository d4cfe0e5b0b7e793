// SPDX-License-Identifier: MIT
#include "shell/language_choice.h"

#include "platform/user_prompt.h"
#include "resources/placeholders.h"
#include "settings/shell_settings.h"
#include "shell/text_numbers.h"

CLanguageChoice::CLanguageChoice(
    QList<LanguageEntry> entries, const QString &loadedModule, bool firstRun, const QString &userAbbreviation)
    : m_entries(std::move(entries)), m_firstRun(firstRun)
{
    Select(Preselected(loadedModule, userAbbreviation));
}

int CLanguageChoice::Preselected(const QString &loadedModule, const QString &userAbbreviation) const
{
    const auto find = [this](auto fits) {
        for (int row = 0; row < m_entries.size(); ++row) {
            if (fits(m_entries.at(row))) {
                return row;
            }
        }
        return -1;
    };
    int row = -1;
    if (m_firstRun) {
        const auto begins = [&](const QString &start) {
            return find([&](const LanguageEntry &entry) {
                return entry.abbreviation.startsWith(start, Qt::CaseInsensitive);
            });
        };
        row = find([&](const LanguageEntry &entry) {
            return entry.valid && entry.abbreviation.compare(userAbbreviation, Qt::CaseInsensitive) == 0;
        });
        if (row < 0 && userAbbreviation.size() >= 2) {
            row = begins(userAbbreviation.left(2));
        }
        if (row < 0) {
            row = begins(QStringLiteral("en"));
        }
    } else {
        row = find([&](const LanguageEntry &entry) { return entry.path == loadedModule; });
    }
    return std::max(row, 0);
}

QString CLanguageChoice::RowText(int row) const
{
    const LanguageEntry &entry = m_entries.at(row);
    return entry.path.isEmpty()
        ? entry.name
        : FillText(QStringLiteral("%s (%s)"), {entry.name, entry.path}, FilledFor::Screen);
}

void CLanguageChoice::Select(int row)
{
    m_selected = row;
    if (m_entries.at(row).valid) {
        m_speaking = row;
    }
}

QString CLanguageChoice::Confirmation() const
{
    return CanAccept() ? Words().confirmation : Words().invalidFile;
}

void CLanguageChoice::Accept(MiscSettings &settings, IUserPrompt &prompt) const
{
    const LanguageEntry &chosen = m_entries.at(m_selected);
    settings.languageFile = chosen.path;
    settings.plugInUse = !chosen.path.isEmpty();
    if (!m_firstRun) {
        prompt.Tell({Text::LanguageFromNextStart, chosen.fromNextStart}, PromptIcon::Information);
    }
}
