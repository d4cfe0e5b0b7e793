// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class CTexts;

/// What the command line asks for.
struct CommandLine
{
    enum class Action { Run, ShowHelp, ShowVersion, ExportStrings };

    Action action = Action::Run;
    /// The file to open; empty for none.
    QString file = {};
    /// To begin with a new list, whatever was open last.
    bool newList = false;
    /// The number of the text that says what is wrong with the command line, 0 when nothing is.
    int error = 0;
    /// The argument that is wrong.
    QString wrongArgument = {};
};

/// `arguments` without the program's name: at most one file, a path or a file: URL. "--" ends the switches.
/// Those of the toolkit that session managers and tests pass are left to it.
CommandLine ParseCommandLine(const QStringList &arguments);

/// What a command line that opens no window, or is wrong, is answered with.
struct CommandLineAnswer
{
    QByteArray text = {};
    /// For standard error and not for standard output.
    bool isError = false;
    int exitCode = 0;
};
CommandLineAnswer AnswerCommandLine(
    const CommandLine &commandLine, const CTexts &texts, const QString &version);
