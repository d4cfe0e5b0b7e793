// SPDX-License-Identifier: MIT
#include "platform/language_names.h"

#include <unicode/uloc.h>

#include <array>

CLanguageNames::CLanguageNames()
{
    const char *const *languages = uloc_getISOLanguages();
    for (; *languages != nullptr; ++languages) {
        const char *const language = *languages;
        const QString code = QString::fromLatin1(uloc_getISO3Language(language));
        if (code.isEmpty()) {
            continue;
        }
        m_codes.insert(code, code);
        m_codes.insert(QString::fromLatin1(language), code);
        for (const char *const inLanguage : {"sv", "en", language}) {
            constexpr int Longest = 100;
            std::array<UChar, Longest> name = {};
            UErrorCode status = U_ZERO_ERROR;
            const int length = uloc_getDisplayLanguage(language, inLanguage, name.data(), Longest, &status);
            if (U_SUCCESS(status)) {
                // The first language of a name keeps it.
                const QString known = QString::fromUtf16(name.data(), length).toLower();
                if (!m_codes.contains(known)) {
                    m_codes.insert(known, code);
                }
            }
        }
    }
}

QString CLanguageNames::CodeOf(const QString &name) const
{
    const QString simple = name.simplified().toLower();
    const auto whole = m_codes.constFind(simple);
    if (whole != m_codes.constEnd()) {
        return *whole;
    }
    qsizetype end = 0;
    while (end < simple.size() && (simple.at(end).isLetter() || simple.at(end).isMark())) {
        ++end;
    }
    return m_codes.value(simple.first(end));
}

QString CLanguageNames::NameOf(const QString &code)
{
    constexpr int Longest = 100;
    std::array<UChar, Longest> name = {};
    UErrorCode status = U_ZERO_ERROR;
    const QByteArray bytes = code.toLatin1();
    const int length =
        uloc_getDisplayLanguage(bytes.constData(), bytes.constData(), name.data(), Longest, &status);
    // A warning tells of a code that has no name.
    return status == U_ZERO_ERROR && length > 0 ? QString::fromUtf16(name.data(), length) : code;
}

QString CLanguageNames::ShortCodeOf(const QString &code)
{
    constexpr int Longest = 20;
    std::array<char, Longest> shorter = {};
    UErrorCode status = U_ZERO_ERROR;
    const int length = uloc_getLanguage(code.toLatin1().constData(), shorter.data(), Longest, &status);
    return U_SUCCESS(status) ? QString::fromLatin1(shorter.data(), length) : code;
}
