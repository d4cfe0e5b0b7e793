// SPDX-License-Identifier: MIT
#include "commandline/arrange_verbs.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "platform/random.h"

#include <limits>
#include <vector>

namespace {

constexpr Option SortTable[] = {
    {.name = "by", .kind = Option::Kind::Choice, .help = Text::OptionSortKey, .choices = "term1|term2|note"},
    {.name = "descending", .kind = Option::Kind::Flag, .help = Text::OptionDescending},
    {.name = "by-length", .kind = Option::Kind::Flag, .help = Text::OptionByLength},
    {.name = "flagged-together", .kind = Option::Kind::Flag, .help = Text::OptionFlaggedTogether}, FromOption,
    ToOption, UnicodeOption, ForceOption};

constexpr Option ShuffleTable[] = {SeedOption, FromOption, ToOption, UnicodeOption, ForceOption};

constexpr Option SelectTable[] = {
    {.name = "flagged", .kind = Option::Kind::Optional, .help = Text::OptionFlagged, .choices = "any|1|2|both"},
    {.name = "not-flagged",
        .kind = Option::Kind::Optional,
        .help = Text::OptionNotFlagged,
        .choices = "any|1|2|both"},
    {.name = "find", .kind = Option::Kind::Text, .help = Text::OptionFind},
    {.name = "in", .kind = Option::Kind::Choice, .help = Text::OptionFindIn, .choices = "term1|term2|note"},
    {.name = "match-case", .kind = Option::Kind::Flag, .help = Text::OptionMatchCase},
    {.name = "whole-words", .kind = Option::Kind::Flag, .help = Text::OptionWholeWords},
    {.name = "wildcards", .kind = Option::Kind::Flag, .help = Text::OptionWildcards},
    {.name = "number",
        .kind = Option::Kind::Number,
        .help = Text::OptionNumber,
        .lowest = 1,
        .highest = std::numeric_limits<int>::max()},
    FromOption, ToOption, UnicodeOption, ForceOption};

/// Which of the flags are meant, in the order of the choices.
enum class FlagChoice { Any = 0, First = 1, Second = 2, Both = 3 };

bool HasFlags(const CWordEntry &entry, FlagChoice choice)
{
    switch (choice) {
    case FlagChoice::Any:
        return entry.GetFlag(0) || entry.GetFlag(1);
    case FlagChoice::First:
        return entry.GetFlag(0);
    case FlagChoice::Second:
        return entry.GetFlag(1);
    case FlagChoice::Both:
        return entry.GetFlag(0) && entry.GetFlag(1);
    }
    return false;
}

/// Reads the first file, and writes what `arrange` makes of it to the second. `arrange` returns how the verb
/// ends.
VerbResult Arrange(const CArguments &arguments, const VerbServices &services,
    const std::function<VerbResult(CWordList &)> &arrange)
{
    const CListOutput output(arguments.Files().constLast(), arguments, services);
    if (!output.MayWrite()) {
        return VerbResult::Failed;
    }
    auto read = ReadListOf(arguments.Files().constFirst(), arguments, services);
    if (!read) {
        return VerbResult::Failed;
    }
    const VerbResult result = arrange(read->list);
    if (result != VerbResult::Done) {
        return result;
    }
    return output.Write(read->list) ? VerbResult::Done : VerbResult::Failed;
}

/// The entries that the command line does not choose.
std::vector<int> EntriesLeftOut(const CWordList &list, const CArguments &arguments)
{
    const auto flagged = arguments.Choice("flagged");
    const auto notFlagged = arguments.Choice("not-flagged");
    const auto text = arguments.Text("find");
    const CTextMatcher matcher({.text = text.value_or(QString()),
        .column = arguments.Choice("in").value_or(AllColumns),
        .matchCase = arguments.Has("match-case"),
        .wholeWord = arguments.Has("whole-words"),
        .wildcard = arguments.Has("wildcards")});
    const int most = arguments.Number("number").value_or(list.Count());
    std::vector<int> leftOut;
    int chosen = 0;
    list.ForEach([&](int index, const CWordEntry &entry) {
        const bool isChosen = chosen < most && (!flagged || HasFlags(entry, FlagChoice(*flagged)))
            && (!notFlagged || !HasFlags(entry, FlagChoice(*notFlagged)))
            && (!text || matcher.FindIn(entry, index).IsFound());
        if (isChosen) {
            ++chosen;
        } else {
            leftOut.push_back(index);
        }
    });
    return leftOut;
}

}

std::span<const Option> SortVerbOptions()
{
    return SortTable;
}

VerbResult RunSort(const CArguments &arguments, const VerbServices &services)
{
    return Arrange(arguments, services, [&](CWordList &list) {
        CRandom random(services.seed);
        list.Sort(arguments.Choice("by").value_or(0),
            {.ascending = !arguments.Has("descending"),
                .groupFlagged = arguments.Has("flagged-together"),
                .byLength = arguments.Has("by-length")},
            random);
        return VerbResult::Done;
    });
}

std::span<const Option> ShuffleOptions()
{
    return ShuffleTable;
}

VerbResult RunShuffle(const CArguments &arguments, const VerbServices &services)
{
    return Arrange(arguments, services, [&](CWordList &list) {
        CRandom random(quint32(arguments.Number("seed").value_or(int(services.seed))));
        list.Sort(ShuffleKey, {}, random);
        return VerbResult::Done;
    });
}

std::span<const Option> SelectOptions()
{
    return SelectTable;
}

VerbResult RunSelect(const CArguments &arguments, const VerbServices &services)
{
    return Arrange(arguments, services, [&](CWordList &list) {
        const std::vector<int> leftOut = EntriesLeftOut(list, arguments);
        if (int(leftOut.size()) == list.Count()) {
            Tell(services, Text::NothingSelected);
            return VerbResult::Found;
        }
        list.DeleteEntries(leftOut);
        return VerbResult::Done;
    });
}
