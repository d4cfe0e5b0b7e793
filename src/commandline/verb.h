// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/arguments.h"
#include "commandline/console.h"

#include <QDate>

#include <functional>
#include <span>

class CTexts;
class ISettingsStore;
struct TablePdfOrder;

/// The exit status of a verb.
enum class VerbResult {
    Done = 0,
    Found = 1, ///< Something was found that was looked for, or there was nothing to do.
    Failed = 2 ///< It was called wrongly, or did not succeed; that was told.
};

/// What a verb is handed; nothing is owned.
struct VerbServices
{
    const CTexts &texts;
    CConsole &console;
    const ISettingsStore &settings;
    QDate today = {};
    quint32 seed = 0; ///< Of chance, where the command line names none.
    /// Writes a PDF file. Returns false when that failed.
    std::function<bool(const TablePdfOrder &order)> writePdf = {};
};

/// A verb of the command line, as a row of the table of all of them.
struct Verb
{
    const char *name;
    /// The number of a text: what follows the verb and its options, a line break, and what it does.
    int help;
    std::span<const Option> options;
    VerbResult (*run)(const CArguments &arguments, const VerbServices &services);
    qsizetype fewestFiles = 1;
    qsizetype mostFiles = AnyNumber;

    static constexpr qsizetype AnyNumber = 1'000'000;

    QString Name() const { return QLatin1StringView(name); }
};

/// The table of verbs, in the order of the help.
std::span<const Verb> Verbs();
/// Null when there is none of that name.
const Verb *FindVerb(const QString &name);

/// Runs a verb with what follows it on the command line. "--help" among it shows the help instead.
VerbResult RunVerb(const Verb &verb, const QStringList &arguments, const VerbServices &services);
/// The help of a verb: how it is called, what it does and its options.
QString VerbHelp(const Verb &verb, const CTexts &texts);
/// A line for each verb, with what it does.
QString VerbList(const CTexts &texts);

/// Tells a text of the string table; values are made fit for a line.
void Tell(const VerbServices &services, int text, const QStringList &values = {});
/// The text with its values, made fit for a line.
QString Filled(const VerbServices &services, int text, const QStringList &values);
