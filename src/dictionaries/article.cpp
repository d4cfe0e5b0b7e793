// SPDX-License-Identifier: MIT
#include "dictionaries/article.h"

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype MostTranslations = 30;
constexpr qsizetype LongestTranslation = 100;

/// Lines that tell something else than a translation begin so.
constexpr std::array OtherLines = {u"Synonym", u"Antonym", u"see:", u"see also:", u"Note:", u"\"", u"“", u"{"};

/// Drops what stands in brackets of all kinds.
QString WithoutBrackets(QStringView text)
{
    QString rest;
    int depth = 0;
    for (const QChar unit : text) {
        if (QStringView(u"([<{").contains(unit)) {
            ++depth;
        } else if (QStringView(u")]>}").contains(unit)) {
            depth = std::max(depth - 1, 0);
        } else if (depth == 0) {
            rest.append(unit);
        }
    }
    return rest;
}

/// A sense without its number.
QStringView WithoutNumber(QStringView line)
{
    qsizetype digits = 0;
    while (digits < line.size() && line.at(digits).isDigit()) {
        ++digits;
    }
    return digits > 0 && line.sliced(digits).startsWith(u'.') ? line.sliced(digits + 1).trimmed() : line;
}

void AddFrom(QStringView line, QStringList &translations)
{
    const QString plain = WithoutBrackets(WithoutNumber(line)).replace(u';', u',');
    for (const QStringView part : QStringView(plain).split(u',')) {
        const QString translation = part.toString().simplified();
        if (!translation.isEmpty() && translation.size() <= LongestTranslation
            && translations.size() < MostTranslations && !translations.contains(translation)) {
            translations.append(translation);
        }
    }
}

}

QStringList TranslationsIn(const QByteArray &article)
{
    QStringList translations;
    const QString text = QString::fromUtf8(article);
    const QList<QStringView> lines = QStringView(text).split(u'\n');
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const QStringView line = lines.at(i).trimmed();
        const QStringView sense = WithoutNumber(line);
        const bool isOther = std::ranges::any_of(OtherLines, [sense](const char16_t *start) {
            return sense.startsWith(QStringView(start), Qt::CaseInsensitive);
        });
        if (!isOther) {
            AddFrom(line, translations);
        }
    }
    return translations;
}

QString HeadwordOf(const QByteArray &article)
{
    const qsizetype end = article.indexOf('\n');
    const QString line = QString::fromUtf8(end < 0 ? article : article.first(end));
    const qsizetype pronunciation = line.indexOf(u" /");
    return WithoutBrackets(QStringView(line).first(pronunciation < 0 ? line.size() : pronunciation))
        .simplified();
}
