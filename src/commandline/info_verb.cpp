// SPDX-License-Identifier: MIT
#include "commandline/info_verb.h"

#include "commandline/list_files.h"
#include "commandline/list_json.h"
#include "commandline/options.h"
#include "model/duplicate_search.h"
#include "platform/local_formats.h"
#include "resources/texts.h"

#include <QJsonObject>

#include <vector>

namespace {

constexpr Option Options[] = {JsonOption, FromOption};

/// What is counted in a list.
struct Counts
{
    int entries = 0;
    std::array<int, 2> flagged = {};
    int notes = 0;
    int duplicates = 0; ///< Entries that share an alternative with another one.
};

Counts CountsOf(const CWordList &list)
{
    Counts counts = {.entries = list.Count(), .flagged = {list.CountFlagged(0), list.CountFlagged(1)}};
    list.ForEach([&counts](int, const CWordEntry &entry) { counts.notes += int(entry.HasNote()); });
    std::vector<bool> isShared(size_t(list.Count()));
    CDuplicateSearch(list).ForEachShared([&isShared](int first, int later) {
        isShared[size_t(first)] = true;
        isShared[size_t(later)] = true;
    });
    counts.duplicates = int(std::count(isShared.begin(), isShared.end(), true));
    return counts;
}

QJsonObject JsonOf(const QString &file, const ReadList &read, const Counts &counts)
{
    const CWordList &list = read.list;
    return {{QStringLiteral("file"), file},
        {QStringLiteral("format"), read.format == nullptr ? QString() : QString(read.format->key)},
        {QStringLiteral("languages"), QJsonArray{list.GetLanguage(0), list.GetLanguage(1)}},
        {QStringLiteral("author"), list.GetAuthor()}, {QStringLiteral("comments"), list.GetComments()},
        {QStringLiteral("entries"), counts.entries},
        {QStringLiteral("flagged"), QJsonArray{counts.flagged[0], counts.flagged[1]}},
        {QStringLiteral("notes"), counts.notes}, {QStringLiteral("duplicates"), counts.duplicates}};
}

QString LinesOf(const QString &file, const ReadList &read, const Counts &counts, const VerbServices &services)
{
    const CWordList &list = read.list;
    return Filled(services, Text::InfoLines,
        {file, read.format == nullptr ? QString() : services.texts.Get(read.format->name), list.GetLanguage(0),
            list.GetLanguage(1), list.GetAuthor(), list.GetComments(), FormatNumber(counts.entries),
            FormatNumber(counts.flagged[0]), FormatNumber(counts.flagged[1]), FormatNumber(counts.notes),
            FormatNumber(counts.duplicates)});
}

}

std::span<const Option> InfoOptions()
{
    return Options;
}

VerbResult RunInfo(const CArguments &arguments, const VerbServices &services)
{
    VerbResult result = VerbResult::Done;
    QJsonArray json;
    for (const QString &file : arguments.Files()) {
        const auto read = ReadListOf(file, arguments, services);
        if (!read) {
            result = VerbResult::Failed;
            continue;
        }
        const Counts counts = CountsOf(read->list);
        if (arguments.Has("json")) {
            json.append(JsonOf(file, *read, counts));
        } else {
            services.console.Print(LinesOf(file, *read, counts, services));
        }
    }
    if (arguments.Has("json")) {
        services.console.Print(JsonText(json));
    }
    return result;
}
