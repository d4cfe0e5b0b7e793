// SPDX-License-Identifier: MIT
#include "dictionaries/installed_dictionaries.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// As many dictionaries as a folder is thought to hold.
constexpr int MostDictionaries = 1000;

/// Names end with the codes of both languages: "freedict-eng-swe".
void GuessLanguages(InstalledDictionary &dictionary, const CLanguageNames &languages)
{
    static const QRegularExpression codes(
        QStringLiteral("(?:^|[-_.])([a-z]{2,3})[-_]([a-z]{2,3})$"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = codes.match(dictionary.name);
    if (match.hasMatch()) {
        dictionary.from = languages.CodeOf(match.captured(1));
        dictionary.to = languages.CodeOf(match.captured(2));
    }
}

/// The path of the articles beside an index; empty when there are none.
QString TextBeside(const QString &base)
{
    for (const char *const suffix : {".dict.dz", ".dict"}) {
        const QString path = base + QLatin1StringView(suffix);
        if (QFileInfo(path).isFile()) {
            return path;
        }
    }
    return {};
}

}

QStringList DictionaryFolders(const QString &chosen)
{
    if (!chosen.isEmpty()) {
        return {chosen};
    }
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (QString &folder : folders) {
        folder += QLatin1StringView("/dictd");
    }
    return folders;
}

std::vector<InstalledDictionary> FindDictionaries(const QStringList &folders, const CLanguageNames &languages)
{
    std::vector<InstalledDictionary> dictionaries;
    for (const QString &folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.index")}, QDir::Files);
        for (const QFileInfo &file : files) {
            const QString name = file.completeBaseName();
            const QString text = TextBeside(file.path() + u'/' + name);
            const bool isHidden =
                std::ranges::any_of(dictionaries, [&name](const auto &known) { return known.name == name; });
            if (text.isEmpty() || isHidden || dictionaries.size() >= MostDictionaries) {
                continue;
            }
            dictionaries.push_back({name, file.filePath(), text, {}, {}});
            GuessLanguages(dictionaries.back(), languages);
        }
    }
    std::ranges::sort(dictionaries, {}, &InstalledDictionary::name);
    return dictionaries;
}

const InstalledDictionary *DictionaryFor(const std::vector<InstalledDictionary> &dictionaries,
    const CLanguageNames &languages, const QString &from, const QString &to)
{
    const QString fromCode = languages.CodeOf(from);
    const QString toCode = languages.CodeOf(to);
    const auto found = std::ranges::find_if(dictionaries, [&](const InstalledDictionary &dictionary) {
        return !fromCode.isEmpty() && !toCode.isEmpty() && dictionary.from == fromCode
            && dictionary.to == toCode;
    });
    return found == dictionaries.end() ? nullptr : &*found;
}
