// SPDX-License-Identifier: MIT
#include "shell/command_line.h"

#include "platform/file_name.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QHash>
#include <QUrl>

CommandLine ParseCommandLine(const QStringList &arguments)
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
        } else if (switches && argument == QStringLiteral("--new")) {
            result.newList = true;
        } else if (switches && argument.startsWith(u'-') && argument.size() > 1) {
            return {.error = Text::UnknownSwitch, .wrongArgument = argument};
        } else if (!result.file.isEmpty()) {
            return {.error = Text::OneFileOnly, .wrongArgument = argument};
        } else {
            const QUrl url(argument);
            result.file = url.isLocalFile() ? LocalFileOf(url) : argument;
        }
    }
    return result;
}

CommandLineAnswer AnswerCommandLine(const CommandLine &commandLine, const CTexts &texts, const QString &version)
{
    const QString usage = texts.Get(Text::Usage);
    if (commandLine.error != 0) {
        const QString message = texts.Fill(commandLine.error, {commandLine.wrongArgument}, FilledFor::Storage);
        return {.text = (message + usage).toLocal8Bit(), .isError = true, .exitCode = 2};
    }
    switch (commandLine.action) {
    case CommandLine::Action::Run:
        break;
    case CommandLine::Action::ShowHelp:
        return {.text = (usage + texts.Get(Text::CommandLineHelp)).toLocal8Bit()};
    case CommandLine::Action::ShowVersion:
        return {
            .text = QStringLiteral("%1 %2\n").arg(texts.Get(Text::ApplicationTitle), version).toLocal8Bit()};
    case CommandLine::Action::ExportStrings:
        return {.text = CTexts::OwnModule()};
    }
    return {};
}
