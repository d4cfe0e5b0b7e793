// SPDX-License-Identifier: MIT
#pragma once

#include "commandline/separated_options.h"
#include "fileformats/formats.h"
#include "model/word_list.h"

/// The name of standard input and standard output on the command line.
inline constexpr QStringView StandardStream = u"-";

/// The keys of the formats of which that is true, for a line.
QString FormatKeys(bool (Format::*can)() const);

/// What a verb has read; nothing when that failed, which was told.
struct ReadList
{
    CWordList list;
    const Format *format = nullptr;
};
/// Reads a list of any format from a file, a pipe or standard input, and tells what the reader left out.
/// `options` and `layout` are what the command line says of it beside "--from".
std::optional<ReadList> ReadListOf(const QString &name, const CArguments &arguments,
    const VerbServices &services, FormatReadOptions options = {}, const GivenLayout &layout = {});

/// Where a verb writes a list: a file, which is replaced as a whole, or standard output.
class CListOutput
{
public:
    /// The format is that of "--to", else that of the name's suffix; standard output gets a glossary file.
    CListOutput(const QString &name, const CArguments &arguments, const VerbServices &services);

    /// Whether there is a format, and no file that is there is lost without "--force"; else tells so. To be
    /// asked before the work begins.
    [[nodiscard]] bool MayWrite() const;
    /// Tells what the format does not hold, and of failure.
    [[nodiscard]] bool Write(const CWordList &list, FormatWriteOptions options = {}) const;

private:
    QString m_name;
    std::optional<QString> m_key; // Of the format, as it was given.
    bool m_mayReplace;
    bool m_forceUnicode;
    const Format *m_format;
    const VerbServices &m_services;
};

/// Writes a result to a file, which is replaced as a whole, or to standard output; `write` fills a device and
/// returns whether it succeeded. Failure is told.
[[nodiscard]] bool WriteResult(
    const QString &name, const VerbServices &services, const std::function<bool(QIODevice &)> &write);
/// Whether `name` is not there yet, or may be replaced; else tells so.
[[nodiscard]] bool MayReplace(const QString &name, bool force, const VerbServices &services);
/// Where an old file lies while it is written over in place; empty for a user without a home.
QString BackupFolder();
