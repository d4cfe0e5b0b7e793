// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"

#include "fileformats/anki_text.h"
#include "fileformats/dictionary_format.h"
#include "fileformats/kvtml.h"
#include "fileformats/plain_formats.h"
#include "fileformats/separated_text.h"
#include "fileformats/separated_text_guess.h"
#include "platform/safe_file.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace {

constexpr std::array GlossarySuffixes = {QLatin1StringView("gls")};
constexpr std::array KvtmlSuffixes = {QLatin1StringView("kvtml")};
constexpr std::array DictionarySuffixes = {
    QLatin1StringView("index"), QLatin1StringView("dict"), QLatin1StringView("dz")};
constexpr std::array SeparatedTextSuffixes = {
    QLatin1StringView("csv"), QLatin1StringView("tsv"), QLatin1StringView("tab"), QLatin1StringView("psv")};
constexpr std::array PlainTextSuffixes = {QLatin1StringView("txt")};

constexpr std::array Table = {
    Format{.id = FormatId::Glossary,
        .key = QLatin1StringView("glossary"),
        .name = Text::FormatGlossary,
        .suffixes = GlossarySuffixes,
        .holdsEverything = true,
        .recognises = GlossaryFormat::Recognises,
        .read = GlossaryFormat::Read,
        .count = GlossaryFormat::Count,
        .write = GlossaryFormat::Write},
    Format{.id = FormatId::WordQuiz,
        .key = QLatin1StringView("wordquiz"),
        .name = Text::FormatWordQuiz,
        .suffixes = {},
        .recognises = WordQuizFormat::Recognises,
        .read = WordQuizFormat::Read},
    Format{.id = FormatId::Kvtml,
        .key = QLatin1StringView("kvtml"),
        .name = Text::FormatKvtml,
        .suffixes = KvtmlSuffixes,
        .recognises = KvtmlFormat::Recognises,
        .read = KvtmlFormat::Read,
        .count = KvtmlFormat::Count,
        .write = KvtmlFormat::Write},
    Format{.id = FormatId::Dictionary,
        .key = QLatin1StringView("dictionary"),
        .name = Text::FormatDictionary,
        .suffixes = DictionarySuffixes,
        .isWordList = false,
        .recognises = DictionaryFormat::Recognises,
        .read = DictionaryFormat::Read},
    Format{.id = FormatId::AnkiText,
        .key = QLatin1StringView("anki"),
        .name = Text::FormatAnkiText,
        .suffixes = PlainTextSuffixes,
        .recognises = AnkiTextFormat::Recognises,
        .read = AnkiTextFormat::Read,
        .count = AnkiTextFormat::Count,
        .write = AnkiTextFormat::Write},
    Format{.id = FormatId::SeparatedText,
        .key = QLatin1StringView("separated"),
        .name = Text::FormatSeparatedText,
        .suffixes = SeparatedTextSuffixes,
        .recognises = SeparatedTextFormat::Recognises,
        .read = SeparatedTextFormat::Read,
        .count = SeparatedTextFormat::Count,
        .write = SeparatedTextFormat::Write},
    Format{.id = FormatId::PlainText,
        .key = QLatin1StringView("text"),
        .name = Text::FormatPlainText,
        .suffixes = PlainTextSuffixes,
        .recognises = PlainTextFormat::Recognises,
        .read = PlainTextFormat::Read,
        .count = PlainTextFormat::Count,
        .write = PlainTextFormat::Write},
};

template<class Condition>
std::vector<const Format *> FormatsThat(Condition condition)
{
    std::vector<const Format *> formats;
    for (const Format &format : Table) {
        if (std::invoke(condition, format)) {
            formats.push_back(&format);
        }
    }
    return formats;
}

QString SuffixOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

/// From the end: a special format may share the suffix of a general one.
const Format *LastWithSuffix(QStringView suffix, bool (Format::*can)() const)
{
    const auto found = std::find_if(Table.rbegin(), Table.rend(), [&](const Format &format) {
        return (format.*can)()
            && std::ranges::any_of(format.suffixes, [&](QLatin1StringView own) { return own == suffix; });
    });
    return found == Table.rend() ? nullptr : &*found;
}

}

std::span<const Format> Formats()
{
    return Table;
}

const Format &FormatOf(FormatId id)
{
    return *std::ranges::find(Table, id, &Format::id);
}

const Format *FindFormat(QStringView name)
{
    const auto *const found =
        std::ranges::find_if(Table, [name](const Format &format) { return format.key == name; });
    return found != Table.end() ? &*found : LastWithSuffix(name, &Format::CanRead);
}

const Format *FindFormatForWriting(const QString &path)
{
    return LastWithSuffix(SuffixOf(path), &Format::CanWrite);
}

QStringList SuffixesNaming(const Format &format)
{
    QStringList suffixes;
    for (const QLatin1StringView suffix : format.suffixes) {
        if (suffix != format.key && FindFormat(QString(suffix)) == &format) {
            suffixes.append(suffix);
        }
    }
    return suffixes;
}

std::vector<const Format *> FormatsToOpen()
{
    return FormatsThat([](const Format &format) { return format.CanRead() && format.isWordList; });
}

std::vector<const Format *> FormatsToSave()
{
    return FormatsThat(&Format::CanWrite);
}

std::vector<const Format *> FormatsToStayIn()
{
    return FormatsThat([](const Format &format) { return format.CanWrite() && format.holdsEverything; });
}

QStringList PatternsOf(const Format &format)
{
    QStringList patterns;
    for (const QLatin1StringView suffix : format.suffixes) {
        patterns.append(QStringLiteral("*.") + suffix);
    }
    return patterns;
}

SeparatedTextOptions SeparatedOptionsFor(const QString &path)
{
    SeparatedTextOptions options;
    if (const char16_t separator = SeparatorOfSuffix(SuffixOf(path)); separator != 0) {
        options.separator = separator;
    }
    return options;
}

FormatLosses LossesOf(const CWordList &list, const Format &format, const FormatWriteOptions &options)
{
    CLossCounter losses;
    if (format.count != nullptr) {
        format.count(list, options, losses);
    }
    return losses.Losses();
}

bool WriteListFile(
    const CWordList &list, const QString &path, const Format &format, const FormatWriteOptions &options)
{
    FormatWriteOptions complete = options;
    if (!complete.separated) {
        complete.separated = SeparatedOptionsFor(path);
    }
    CSafeFile file;
    if (!format.CanWrite() || !file.Open(path, options.file.backupFolder)) {
        return false;
    }
    if (!format.write(list, file.Device(), complete)) {
        file.Cancel();
        return false;
    }
    return file.Commit();
}

bool WriteListDevice(
    const CWordList &list, QIODevice &device, const Format &format, const FormatWriteOptions &options)
{
    return format.CanWrite() && format.write(list, device, options);
}
