// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

/// Knows the languages of the world by their names in Swedish, in English and in themselves (Unicode CLDR).
class CLanguageNames
{
public:
    CLanguageNames();

    /// The code (ISO 639-3) of a language; empty when it is not known. `name` is a name as users write it, of
    /// which the first word may be enough ("engelska (brittisk)"), or a code of two or three letters.
    QString CodeOf(const QString &name) const;

    /// The name of a language in itself, by a code of two or three letters, a country behind it or not; the
    /// code where it is none.
    static QString NameOf(const QString &code);
    /// The code of two letters for one of three; the same where there is none.
    static QString ShortCodeOf(const QString &code);

private:
    QHash<QString, QString> m_codes; // By names in small letters.
};
