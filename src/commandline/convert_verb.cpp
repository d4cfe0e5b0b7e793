// SPDX-License-Identifier: MIT
#include "commandline/convert_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "commandline/separated_options.h"

#include <QFileInfo>

namespace {

constexpr Option Options[] = {FromOption,
    {.name = "from-separator",
        .kind = Option::Kind::Choice,
        .help = Text::OptionFromSeparator,
        .choices = SeparatorChoices},
    {.name = "from-columns", .kind = Option::Kind::Text, .help = Text::OptionFromColumns},
    {.name = "from-heading",
        .kind = Option::Kind::Choice,
        .help = Text::OptionFromHeading,
        .choices = "yes|no"},
    {.name = "from-quote",
        .kind = Option::Kind::Choice,
        .help = Text::OptionFromQuote,
        .choices = QuoteChoices},
    {.name = "from-encoding",
        .kind = Option::Kind::Choice,
        .help = Text::OptionFromEncoding,
        .choices = EncodingChoices},
    {.name = "languages", .kind = Option::Kind::Text, .help = Text::OptionFileLanguages},
    {.name = "split-semicolons", .kind = Option::Kind::Flag, .help = Text::OptionSplitSemicolons},
    {.name = "split-commas", .kind = Option::Kind::Flag, .help = Text::OptionSplitCommas},
    {.name = "split-slashes", .kind = Option::Kind::Flag, .help = Text::OptionSplitSlashes},
    {.name = "comments-in-parentheses", .kind = Option::Kind::Flag, .help = Text::OptionParentheses}, ToOption,
    {.name = "to-separator",
        .kind = Option::Kind::Choice,
        .help = Text::OptionToSeparator,
        .choices = SeparatorChoices},
    {.name = "to-columns", .kind = Option::Kind::Text, .help = Text::OptionToColumns},
    {.name = "to-heading", .kind = Option::Kind::Choice, .help = Text::OptionToHeading, .choices = "yes|no"},
    {.name = "to-encoding",
        .kind = Option::Kind::Choice,
        .help = Text::OptionToEncoding,
        .choices = EncodingChoices},
    {.name = "to-mark", .kind = Option::Kind::Choice, .help = Text::OptionToMark, .choices = "yes|no"},
    {.name = "terms", .kind = Option::Kind::Choice, .help = Text::OptionTerms, .choices = "both|term1|term2"},
    {.name = "alternatives",
        .kind = Option::Kind::Choice,
        .help = Text::OptionAlternatives,
        .choices = "asterisk|semicolon|comma|slash"},
    UnicodeOption, ForceOption};

/// Two different numbers from 1 on with a comma between them, counted from 0.
std::optional<std::array<int, 2>> ParseLanguages(const QString &text)
{
    const int first = text.section(u',', 0, 0).toInt();
    const int second = text.section(u',', 1).toInt();
    return first > 0 && second > 0 && first != second ? std::optional(std::array{first - 1, second - 1})
                                                      : std::nullopt;
}

}

std::span<const Option> ConvertOptions()
{
    return Options;
}

VerbResult RunConvert(const CArguments &arguments, const VerbServices &services)
{
    FormatReadOptions reading;
    FormatWriteOptions writing;
    const auto layout = GivenLayoutOf("from-", arguments, services);
    const auto layoutToWrite = GivenLayoutOf("to-", arguments, services);
    if (!layout || !layoutToWrite) {
        return VerbResult::Failed;
    }
    const QString &outputName = arguments.Files().constLast();
    const auto key = arguments.Text("to");
    const bool isSuffix = key && SuffixesNaming(FormatOf(FormatId::SeparatedText)).contains(*key);
    writing.separated =
        LayoutToWrite(*layoutToWrite, isSuffix ? *key : QFileInfo(outputName).suffix().toLower());
    if (const auto languages = arguments.Text("languages")) {
        const auto parsed = ParseLanguages(*languages);
        if (!parsed) {
            Tell(services, Text::WrongValue, {*languages, QStringLiteral("--languages")});
            return VerbResult::Failed;
        }
        reading.languages = *parsed;
    }
    reading.terms = {.semicolonsSeparate = arguments.Has("split-semicolons"),
        .commasSeparate = arguments.Has("split-commas"),
        .slashesSeparate = arguments.Has("split-slashes"),
        .roundBracketsAreComments = arguments.Has("comments-in-parentheses")};
    writing.plainText = PlainTextTerms(arguments.Choice("terms").value_or(0));
    writing.alternatives = AlternativeMark(arguments.Choice("alternatives").value_or(0));

    const CListOutput output(outputName, arguments, services);
    if (!output.MayWrite()) {
        return VerbResult::Failed;
    }
    const auto read = ReadListOf(arguments.Files().constFirst(), arguments, services, reading, *layout);
    return read && output.Write(read->list, writing) ? VerbResult::Done : VerbResult::Failed;
}
