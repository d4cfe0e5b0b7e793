// SPDX-License-Identifier: MIT
#include "commandline/merge_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "fileformats/file_import.h"
#include "platform/local_formats.h"

#include <limits>

namespace {

constexpr int Most = std::numeric_limits<int>::max();

constexpr Option Options[] = {
    {.name = "ignore-duplicates", .kind = Option::Kind::Flag, .help = Text::OptionIgnoreDuplicates},
    {.name = "languages",
        .kind = Option::Kind::Choice,
        .help = Text::OptionLanguages,
        .choices = "any|one|both"},
    {.name = "min", .kind = Option::Kind::Number, .help = Text::OptionMinimum, .lowest = 0, .highest = Most},
    {.name = "max", .kind = Option::Kind::Number, .help = Text::OptionMaximum, .lowest = 0, .highest = Most},
    {.name = "author", .kind = Option::Kind::Text, .help = Text::OptionAuthor},
    {.name = "comments", .kind = Option::Kind::Text, .help = Text::OptionComments},
    {.name = "language1", .kind = Option::Kind::Text, .help = Text::OptionLanguage1},
    {.name = "language2", .kind = Option::Kind::Text, .help = Text::OptionLanguage2}, FromOption, ToOption,
    UnicodeOption, ForceOption};

ImportOptions ImportOptionsOf(const CArguments &arguments)
{
    return {.useFilter = true,
        .languageMatch = LanguageMatch(arguments.Choice("languages").value_or(0)),
        .ignoreDuplicates = arguments.Has("ignore-duplicates"),
        .prefersStraight = true,
        .filter = {.minimum = arguments.Number("min"),
            .maximum = arguments.Number("max"),
            .author = arguments.Text("author").value_or(QString()),
            .comments = arguments.Text("comments").value_or(QString()),
            .languages = {arguments.Text("language1").value_or(QString()),
                arguments.Text("language2").value_or(QString())}}};
}

/// Why a file is left out; the texts stand in the order of the faults.
int FaultText(FileFault fault)
{
    return Text::FirstFileFault + int(fault);
}

CWordList WithoutEntries(CWordList list)
{
    list.DeleteAll();
    return list;
}

}

std::span<const Option> MergeOptions()
{
    return Options;
}

VerbResult RunMerge(const CArguments &arguments, const VerbServices &services)
{
    const CListOutput output(arguments.Files().constFirst(), arguments, services);
    if (!output.MayWrite()) {
        return VerbResult::Failed;
    }
    const ImportOptions options = ImportOptionsOf(arguments);
    const KeepGoing keepGoing = true;
    std::optional<CFileImport> import;
    int files = 0;
    int ignoredEntries = 0;
    for (const QString &name : arguments.Files().sliced(1)) {
        const auto read = ReadListOf(name, arguments, services);
        if (!read) {
            return VerbResult::Failed;
        }
        if (!import) {
            import.emplace(WithoutEntries(read->list), InsertOptions::AtEnd, options);
        }
        const FileImport outcome = import->ImportList(read->list, keepGoing);
        if (outcome.fault == FileFault::ListFull) {
            Tell(services, FaultText(outcome.fault), {name});
            return VerbResult::Failed;
        }
        if (outcome.result == ImportResult::Ignored) {
            Tell(services, FaultText(outcome.fault), {name});
            continue;
        }
        ++files;
        ignoredEntries += outcome.ignoredEntries;
    }
    if (files == 0) {
        Tell(services, Text::NothingToMerge);
        return VerbResult::Found;
    }
    const CWordList merged = import->TakeTarget();
    if (!output.Write(merged)) {
        return VerbResult::Failed;
    }
    Tell(services, Text::Merged,
        {FormatNumber(files), FormatNumber(merged.Count()), FormatNumber(ignoredEntries)});
    return VerbResult::Done;
}
