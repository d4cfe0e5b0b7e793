// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Names of files that are looked for: "*" stands for any characters, "?" for one, and letter case is ignored.
/// "*.*" is every file, also one without a dot in its name.
class CFilePatterns
{
public:
    /// Several are separated by ";". None at all is "*.gls".
    explicit CFilePatterns(const QString &patterns);

    bool Match(QStringView name) const;
    /// Whether a name matches only because it is that of a glossary file: nothing else is looked for there.
    bool MatchAsGlossaryOnly(QStringView name) const;

private:
    QStringList m_patterns;
};
