// SPDX-License-Identifier: MIT
#include "document/file_filters.h"

#include "document/text_numbers.h"
#include "fileformats/formats.h"
#include "resources/texts.h"

QStringList FileFilters(const QString &text)
{
    const QStringList parts = text.trimmed().split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // A name may say its pattern itself, as in "Alla filer (*.*)"; other brackets belong to it.
        const QString name = parts.at(i).section(QStringLiteral(" (*"), 0, 0);
        const QString pattern =
            parts.at(i + 1) == QStringLiteral("*.*") ? QStringLiteral("*") : parts.at(i + 1);
        filters.append(name + QStringLiteral(" (") + QString(pattern).replace(u';', u' ') + u')');
    }
    return filters;
}

QStringList FormatFilters(const std::vector<const Format *> &formats, const CTexts &texts)
{
    QStringList filters;
    for (const Format *const format : formats) {
        if (!format->suffixes.empty()) {
            filters.append(
                texts.Get(format->name) + QStringLiteral(" (") + PatternsOf(*format).join(u' ') + u')');
        }
    }
    return filters;
}

QStringList OpenFilters(const CTexts &texts)
{
    return FormatFilters(FormatsToOpen(), texts) + FileFilters(texts.Get(Text::OpenFilters)).last(1);
}
