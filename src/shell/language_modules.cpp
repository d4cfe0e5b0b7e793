// SPDX-License-Identifier: MIT
#include "shell/language_modules.h"

#include "resources/string_table.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

/// The program's own texts are a hundredth of it.
constexpr qint64 LargestModule = 4'194'304;

/// The language's name as one line of a list.
QString ShownName(const CStringTable &module)
{
    constexpr qsizetype Longest = 60;
    return module.Text(Text::LanguageName).left(Longest).simplified();
}

/// The texts of a module, with the program's own in place of what it lacks.
LanguageEntry MakeEntry(const CStringTable &module, const CTexts &texts, const QString &path)
{
    const auto get = [&](int number) { return texts.TextOf(module, number); };
    return {.path = path,
        .name = ShownName(module),
        .abbreviation = module.Text(Text::LanguageAbbreviation),
        .caption = get(Text::LanguageTitle),
        .question = get(Text::LanguageQuestion),
        .list = get(Text::LanguageList),
        .confirmation = get(Text::LanguageChosen),
        .cancel = get(Text::Cancel),
        .ok = get(Text::Ok),
        .invalidFile = get(Text::InvalidLanguageFile),
        .fromNextStart = get(Text::LanguageFromNextStart),
        .picture = module.Picture()};
}

void AddModules(QList<LanguageEntry> &entries, const CTexts &texts, const QString &folder, bool recursive)
{
    QStringList paths;
    QDirIterator files(folder, {QStringLiteral("*.ordmod")}, QDir::Files,
        recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    std::ranges::sort(paths);
    for (const QString &path : std::as_const(paths)) {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        const bool known = std::ranges::any_of(entries, [&](const LanguageEntry &entry) {
            return !entry.path.isEmpty() && QFileInfo(entry.path).canonicalFilePath() == canonical;
        });
        QByteArray module;
        LanguageEntry entry;
        if (!known && TestLanguageModule(path, texts, module, &entry) != ModuleTest::CannotLoad) {
            entries.append(entry);
        }
    }
}

}

ModuleTest TestLanguageModule(
    const QString &path, const CTexts &texts, QByteArray &module, LanguageEntry *entry)
{
    module.clear();
    QFile file(path);
    CStringTable table;
    if (!QFileInfo(path).isFile() || file.size() > LargestModule || !file.open(QIODevice::ReadOnly)) {
        return ModuleTest::CannotLoad;
    }
    const QByteArray content = file.read(LargestModule);
    if (!table.Load(content)) {
        return ModuleTest::CannotLoad;
    }
    if (table.Text(Text::VersionKey) != texts.Own().Text(Text::VersionKey)) {
        if (entry != nullptr) {
            *entry = {.path = path, .name = ShownName(table), .valid = false};
        }
        return ModuleTest::OtherVersion;
    }
    if (entry != nullptr) {
        *entry = MakeEntry(table, texts, path);
    }
    module = content;
    return ModuleTest::Ok;
}

QList<LanguageEntry> FindLanguages(const CTexts &texts, const QStringList &folders)
{
    QList<LanguageEntry> entries = {MakeEntry(texts.Own(), texts, {})};
    for (const QString &folder : folders) {
        AddModules(entries, texts, folder, false);
        AddModules(entries, texts, folder + QStringLiteral("/ordmod"), true);
    }
    return entries;
}

QString LanguageAbbreviation(const QLocale &locale)
{
    struct Abbreviation
    {
        QLocale::Language language;
        QLocale::Territory territory; // AnyTerritory for all that are not listed.
        const char *text;
    };
    static constexpr Abbreviation Listed[] = {
        {QLocale::Chinese, QLocale::Taiwan, "cht"},
        {QLocale::Chinese, QLocale::AnyTerritory, "chs"},
        {QLocale::Croatian, QLocale::AnyTerritory, "hrv"},
        {QLocale::Czech, QLocale::AnyTerritory, "csy"},
        {QLocale::Dutch, QLocale::Belgium, "nlb"},
        {QLocale::Dutch, QLocale::AnyTerritory, "nld"},
        {QLocale::English, QLocale::UnitedKingdom, "eng"},
        {QLocale::English, QLocale::Australia, "ena"},
        {QLocale::English, QLocale::Canada, "enc"},
        {QLocale::English, QLocale::Ireland, "eni"},
        {QLocale::English, QLocale::NewZealand, "enz"},
        {QLocale::English, QLocale::AnyTerritory, "enu"},
        {QLocale::French, QLocale::Belgium, "frb"},
        {QLocale::French, QLocale::Canada, "frc"},
        {QLocale::French, QLocale::Switzerland, "frs"},
        {QLocale::French, QLocale::AnyTerritory, "fra"},
        {QLocale::German, QLocale::Austria, "dea"},
        {QLocale::German, QLocale::Switzerland, "des"},
        {QLocale::German, QLocale::AnyTerritory, "deu"},
        {QLocale::Icelandic, QLocale::AnyTerritory, "isl"},
        {QLocale::Italian, QLocale::Switzerland, "its"},
        {QLocale::Japanese, QLocale::AnyTerritory, "jpn"},
        {QLocale::NorwegianBokmal, QLocale::AnyTerritory, "nor"},
        {QLocale::NorwegianNynorsk, QLocale::AnyTerritory, "non"},
        {QLocale::Polish, QLocale::AnyTerritory, "plk"},
        {QLocale::Portuguese, QLocale::Brazil, "ptb"},
        {QLocale::Portuguese, QLocale::AnyTerritory, "ptg"},
        {QLocale::Romanian, QLocale::AnyTerritory, "rom"},
        {QLocale::Slovak, QLocale::AnyTerritory, "sky"},
        {QLocale::Spanish, QLocale::Mexico, "esm"},
        {QLocale::Spanish, QLocale::AnyTerritory, "esn"},
        {QLocale::Swedish, QLocale::Finland, "svf"},
        {QLocale::Swedish, QLocale::AnyTerritory, "sve"},
        {QLocale::Turkish, QLocale::AnyTerritory, "trk"},
    };
    for (const Abbreviation &abbreviation : Listed) {
        if (abbreviation.language == locale.language()
            && (abbreviation.territory == locale.territory()
                || abbreviation.territory == QLocale::AnyTerritory)) {
            return QString::fromLatin1(abbreviation.text);
        }
    }
    return QLocale::languageToCode(locale.language(), QLocale::ISO639Part2T);
}
