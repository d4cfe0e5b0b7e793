// SPDX-License-Identifier: MIT
#include "shell/command_line.h"

#include "resources/text_numbers.h"

#include <QUrl>

CommandLine parseCommandLine(const QStringList &arguments)
{
    CommandLine result;
    bool switches = true;
    for (const QString &argument : arguments) {
        if (switches && argument == QStringLiteral("--")) {
            switches = false;
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
