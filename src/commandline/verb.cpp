// SPDX-License-Identifier: MIT
#include "commandline/verb.h"

#include "commandline/list_files.h"
#include "commandline/text_numbers.h"
#include "resources/texts.h"

#include <algorithm>

namespace {

constexpr int HelpColumn = 28;

/// A line of the help; what doesn't fit before the second column stands on a line of its own.
QString HelpLine(const QString &written, const QString &help)
{
    QString line = QStringLiteral("  ") + written;
    if (line.size() > HelpColumn - 2) {
        line += u'\n' + QString(HelpColumn, u' ');
    }
    return line.leftJustified(HelpColumn) + help + u'\n';
}

VerbResult WrongUse(const Verb &verb, const VerbServices &services, int text, const QStringList &values = {})
{
    Tell(services, text, values);
    Tell(services, Text::TryHelp, {verb.Name()});
    return VerbResult::Failed;
}

bool AsksForHelp(const QStringList &arguments)
{
    const QStringList options = arguments.mid(0, arguments.indexOf(QStringLiteral("--")));
    return options.contains(QStringLiteral("--help")) || options.contains(QStringLiteral("-h"));
}

}

const Verb *FindVerb(const QString &name)
{
    const auto found = std::ranges::find(Verbs(), name, &Verb::Name);
    return found == Verbs().end() ? nullptr : &*found;
}

VerbResult RunVerb(const Verb &verb, const QStringList &arguments, const VerbServices &services)
{
    VerbResult result = VerbResult::Done;
    if (AsksForHelp(arguments)) {
        services.console.Print(VerbHelp(verb, services.texts));
    } else {
        CArguments::Fault fault;
        const auto parsed = CArguments::Parse(arguments, verb.options, fault);
        if (!parsed) {
            return WrongUse(verb, services, fault.text, fault.values);
        }
        const qsizetype files = parsed->Files().size();
        if (files < verb.fewestFiles || files > verb.mostFiles) {
            return files < verb.fewestFiles
                ? WrongUse(verb, services, Text::TooFewFiles)
                : WrongUse(verb, services, Text::TooManyFiles, {parsed->Files().at(verb.mostFiles)});
        }
        result = verb.run(*parsed, services);
    }
    if (!services.console.Flush()) {
        Tell(services, Text::CannotPrint);
        return VerbResult::Failed;
    }
    return result;
}

QString VerbHelp(const Verb &verb, const CTexts &texts)
{
    const QString help = texts.Get(verb.help);
    QString text = texts.Fill(Text::VerbUsage, {verb.Name(), help.section(u'\n', 0, 0)}, FilledFor::Storage)
        + help.section(u'\n', 1) + QStringLiteral("\n\n");
    for (const Option &option : verb.options) {
        text += HelpLine(option.Written(), texts.Get(option.help));
    }
    text += HelpLine(QStringLiteral("--help"), texts.Get(Text::OptionHelp));
    const auto has = [&verb](const char *option) {
        return std::ranges::find(verb.options, QLatin1StringView(option), &Option::Name) != verb.options.end();
    };
    if (has("from")) {
        text += texts.Fill(Text::FormatsRead, {FormatKeys(&Format::CanRead)}, FilledFor::Storage);
    }
    if (has("to")) {
        text += texts.Fill(Text::FormatsWritten, {FormatKeys(&Format::CanWrite)}, FilledFor::Storage);
    }
    return text;
}

QString VerbList(const CTexts &texts)
{
    QString list;
    for (const Verb &verb : Verbs()) {
        list += HelpLine(verb.Name(), texts.Get(verb.help).section(u'\n', 1, 1));
    }
    return list;
}

QString Filled(const VerbServices &services, int text, const QStringList &values)
{
    QStringList shown;
    for (const QString &value : values) {
        shown.append(ShownInLine(value));
    }
    return services.texts.Fill(text, shown, FilledFor::Storage);
}

void Tell(const VerbServices &services, int text, const QStringList &values)
{
    services.console.Tell(Filled(services, text, values));
}
