// SPDX-License-Identifier: MIT
#include "shell/command_line.h"

#include "resources/text_numbers.h"

#include <QHash>
#include <QUrl>

CommandLine parseCommandLine(const QStringList &arguments)
{
    using enum CommandLine::Action;
    static const QHash<QString, CommandLine::Action> actions = {{QStringLiteral("--help"), ShowHelp},
        {QStringLiteral("-h"), ShowHelp}, {QStringLiteral("--version"), ShowVersion},
        {QStringLiteral("--export-strings"), ExportStrings}};
    // Each is followed by a value.
    static const QStringList toolkitSwitches = {
        QStringLiteral("-platform"), QStringLiteral("-session"), QStringLiteral("-style")};

    CommandLine result;
    bool switches = true;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (switches && argument == QStringLiteral("--")) {
            switches = false;
        } else if (switches && toolkitSwitches.contains(argument) && i + 1 < arguments.size()) {
            ++i;
        } else if (switches && actions.contains(argument)) {
            result.action = actions.value(argument);
        } else if (switches && argument.startsWith(u'-') && argument.size() > 1) {
            return {.error = Text::UnknownSwitch, .wrongArgument = argument};
        } else if (!result.file.isEmpty()) {
            return {.error = Text::OneFileOnly, .wrongArgument = argument};
        } else {
            const QUrl url(argument);
            result.file = url.isLocalFile() ? url.toLocalFile() : argument;
        }
    }
    return result;
}
