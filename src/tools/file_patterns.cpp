// SPDX-License-Identifier: MIT
#include "tools/file_patterns.h"

#include "platform/letters.h"

#include <algorithm>

namespace {

const QString GlossaryPattern = QStringLiteral("*.gls");

QString Folded(QStringView text)
{
    const char16_t *const folding = CaseFolding();
    QString folded = text.toString();
    std::ranges::transform(folded, folded.begin(), [folding](QChar unit) { return folding[unit.unicode()]; });
    return folded;
}

/// Both are folded. The system's names need not be text, so units are compared and not characters.
bool Matches(QStringView name, QStringView pattern)
{
    qsizetype star = -1; // The last "*", and up to where it stands for something.
    qsizetype end = 0;
    qsizetype i = 0;
    qsizetype p = 0;
    while (i < name.size()) {
        if (p < pattern.size() && pattern.at(p) == u'*') {
            star = p++;
            end = i;
        } else if (p < pattern.size() && (pattern.at(p) == u'?' || pattern.at(p) == name.at(i))) {
            ++p;
            ++i;
        } else if (star >= 0) {
            p = star + 1;
            i = ++end;
        } else {
            return false;
        }
    }
    return std::ranges::all_of(pattern.mid(p), [](QChar unit) { return unit == u'*'; });
}

}

CFilePatterns::CFilePatterns(const QString &patterns)
{
    for (const QString &part : patterns.split(u';')) {
        const QString pattern = Folded(part.trimmed());
        if (!pattern.isEmpty()) {
            m_patterns.append(pattern == QStringLiteral("*.*") ? QStringLiteral("*") : pattern);
        }
    }
    if (m_patterns.isEmpty()) {
        m_patterns.append(GlossaryPattern);
    }
}

bool CFilePatterns::Match(QStringView name) const
{
    const QString folded = Folded(name);
    return std::ranges::any_of(
        m_patterns, [&folded](const QString &pattern) { return Matches(folded, pattern); });
}

bool CFilePatterns::MatchAsGlossaryOnly(QStringView name) const
{
    const QString folded = Folded(name);
    return std::ranges::all_of(m_patterns,
        [&folded](const QString &pattern) { return pattern == GlossaryPattern || !Matches(folded, pattern); });
}
