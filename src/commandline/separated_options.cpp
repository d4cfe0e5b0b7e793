// SPDX-License-Identifier: MIT
#include "commandline/separated_options.h"

#include "commandline/text_numbers.h"
#include "fileformats/column_guess.h"
#include "fileformats/formats.h"
#include "fileformats/separated_text_guess.h"
#include "fileformats/text_detection.h"

#include <QIODevice>

#include <algorithm>

namespace {

constexpr char16_t Separators[] = {u',', u';', u'\t', u'|'};
constexpr char16_t Quotes[] = {u'"', u'\'', 0};
constexpr bool YesOrNo[] = {true, false};

/// In the order of the enumeration.
constexpr const char *Columns[] = {"-", "term1", "term2", "note", "flag1", "flag2"};

/// Columns with commas between their names; none when one is no name.
std::vector<TextColumn> ColumnsOf(const QString &names)
{
    std::vector<TextColumn> columns;
    for (const QString &name : names.split(u',')) {
        const auto *const found = std::ranges::find_if(
            Columns, [&name](const char *column) { return name == QLatin1StringView(column); });
        if (found == std::end(Columns)) {
            return {};
        }
        columns.push_back(TextColumn(found - std::begin(Columns)));
    }
    return columns;
}

/// What the choice stands for.
template<class Value, size_t count>
std::optional<Value> Chosen(const std::optional<int> &choice, const Value (&values)[count])
{
    return choice ? std::optional(values[*choice]) : std::nullopt;
}

}

std::optional<GivenLayout> GivenLayoutOf(
    const char *prefix, const CArguments &arguments, const VerbServices &services)
{
    const auto full = [prefix](const char *name) { return QByteArray(prefix) + name; };
    const auto choice = [&](const char *name) { return arguments.Choice(full(name).constData()); };
    GivenLayout given = {.separator = Chosen(choice("separator"), Separators),
        .quote = Chosen(choice("quote"), Quotes),
        .writesMark = Chosen(choice("mark"), YesOrNo),
        .hasHeading = Chosen(choice("heading"), YesOrNo)};
    if (const auto encoding = choice("encoding")) {
        given.encoding = TextEncoding(*encoding);
    }
    if (const auto names = arguments.Text(full("columns").constData())) {
        given.columns = ColumnsOf(*names);
        if (given.columns.empty()) {
            Tell(services, Text::WrongValue, {*names, QString::fromLatin1("--" + full("columns"))});
            return std::nullopt;
        }
    }
    return given;
}

SeparatedTextOptions LayoutToRead(const GivenLayout &given, QIODevice &device, const QString &suffix)
{
    SeparatedTextOptions layout = CompletedOptions(device, std::nullopt, suffix);
    layout.separator = given.separator.value_or(layout.separator);
    layout.quote = given.quote.value_or(layout.quote);
    layout.encoding = given.encoding.has_value() ? given.encoding : layout.encoding;
    layout.columns = given.columns; // Without any they are found out by the rest.
    if (given.hasHeading || given.separator || given.quote) {
        const QByteArray head = device.read(FormatSample::SampleSize);
        device.seek(0);
        const bool isWhole = head.size() == device.size();
        const SampleRows sample = TakeSampleRows(DecodeHead(head), isWhole, layout.separator, layout.quote);
        layout.hasHeading = given.hasHeading.value_or(GuessHeading(sample.rows));
        layout.titleRows = layout.hasHeading ? GuessTitleRows(sample.rows) : 0;
    }
    return layout;
}

std::optional<SeparatedTextOptions> LayoutToWrite(const GivenLayout &given, const QString &suffix)
{
    if (given.IsEmpty()) {
        return std::nullopt;
    }
    SeparatedTextOptions layout;
    const char16_t usual = SeparatorOfSuffix(suffix);
    layout.separator = given.separator.value_or(usual != 0 ? usual : layout.separator);
    layout.quote = given.quote.value_or(layout.quote);
    layout.encoding = given.encoding;
    layout.writesMark = given.writesMark.value_or(layout.writesMark);
    layout.hasHeading = given.hasHeading.value_or(layout.hasHeading);
    layout.columns = given.columns;
    return layout;
}
