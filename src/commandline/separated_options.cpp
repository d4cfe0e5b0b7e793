// SPDX-License-Identifier: MIT
#include "commandline/separated_options.h"

#include "commandline/text_numbers.h"

#include <algorithm>

namespace {

constexpr char16_t Separators[] = {u',', u';', u'\t', u'|'};
constexpr char16_t Quotes[] = {u'"', u'\'', 0};
constexpr int Yes = 0; ///< Of the choices "yes|no".

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

/// What the options of one direction say of the layout; `prefix` begins their names.
class CLayout
{
public:
    CLayout(const CArguments &arguments, const char *prefix) : m_arguments(arguments), m_prefix(prefix) { }

    bool IsGiven() const { return m_isGiven; }
    template<class Take>
    void Choice(const char *name, Take take)
    {
        if (const auto choice = m_arguments.Choice(Full(name).constData())) {
            m_isGiven = true;
            take(*choice);
        }
    }
    /// False for columns that are none.
    bool TakeColumns(SeparatedTextOptions &layout, const VerbServices &services)
    {
        const auto names = m_arguments.Text(Full("columns").constData());
        if (!names) {
            return true;
        }
        m_isGiven = true;
        layout.columns = ColumnsOf(*names);
        if (layout.columns.empty()) {
            Tell(services, Text::WrongValue,
                {*names, QStringLiteral("--") + QString::fromLatin1(Full("columns"))});
            return false;
        }
        return true;
    }

private:
    QByteArray Full(const char *name) const { return QByteArray(m_prefix) + name; }

    const CArguments &m_arguments;
    const char *m_prefix;
    bool m_isGiven = false;
};

bool TakeLayout(const CArguments &arguments, const VerbServices &services, const char *prefix,
    std::optional<SeparatedTextOptions> &layout)
{
    SeparatedTextOptions given;
    CLayout options(arguments, prefix);
    options.Choice("separator", [&given](int choice) { given.separator = Separators[choice]; });
    options.Choice("heading", [&given](int choice) { given.hasHeading = choice == Yes; });
    options.Choice("quote", [&given](int choice) { given.quote = Quotes[choice]; });
    options.Choice("encoding", [&given](int choice) { given.encoding = TextEncoding(choice); });
    options.Choice("mark", [&given](int choice) { given.writesMark = choice == Yes; });
    if (!options.TakeColumns(given, services)) {
        return false;
    }
    if (options.IsGiven()) {
        layout = given;
    }
    return true;
}

}

bool ReadSeparatedOptions(const CArguments &arguments, const VerbServices &services, FormatReadOptions &reading,
    FormatWriteOptions &writing)
{
    return TakeLayout(arguments, services, "from-", reading.separated)
        && TakeLayout(arguments, services, "to-", writing.separated);
}
