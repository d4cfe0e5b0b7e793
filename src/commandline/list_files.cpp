// SPDX-License-Identifier: MIT
#include "commandline/list_files.h"

#include "commandline/text_numbers.h"
#include "document/read_message.h"
#include "document/recovery.h"
#include "fileformats/text_file_reader.h"
#include "platform/file_descriptor.h"
#include "platform/file_name.h"
#include "platform/regular_file.h"
#include "platform/safe_file.h"

#include <QBuffer>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// Opens what may be read only once, from its start to its end; false for anything else.
bool OpenPipe(QFile &file, const QString &name)
{
    struct stat status = {};
    const QByteArray path = EncodeFileName(name);
    CFileDescriptor descriptor;
    return ::stat(path.constData(), &status) == 0 && S_ISFIFO(status.st_mode)
        && descriptor.Open(path, O_RDONLY | O_NOCTTY)
        && file.open(descriptor.Release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
}

/// All that a device gives, or so much of it that it is refused.
QByteArray ReadToEnd(QIODevice &device)
{
    constexpr qint64 PieceSize = qint64(1024) * 1024;
    QByteArray bytes;
    while (bytes.size() <= FileLimits::MostBytes) {
        const QByteArray piece = device.read(PieceSize);
        if (piece.isEmpty()) {
            break;
        }
        bytes += piece;
    }
    return bytes;
}

/// `source` has random access.
FormatReading ReadAs(CWordList &list, QIODevice &source, const QString &suffix, const GivenLayout &layout,
    FormatReadOptions options)
{
    options.separated = LayoutToRead(layout, source, suffix);
    options.format = options.format != nullptr ? options.format : &FormatOf(FormatId::SeparatedText);
    return ReadListDevice(list, source, options);
}

FormatReading ReadStream(
    CWordList &list, QFile &stream, const FormatReadOptions &options, const GivenLayout &layout)
{
    FormatReading reading;
    if (layout.IsEmpty()) {
        reading = ReadListDevice(list, stream, options);
    } else {
        // What is not said is found out, for which all must be there.
        QBuffer content;
        content.setData(ReadToEnd(stream));
        content.open(QIODevice::ReadOnly);
        reading = ReadAs(list, content, {}, layout, options);
    }
    // Half a list is not taken for a whole one.
    return stream.error() == QFileDevice::NoError ? reading : FormatReading();
}

FormatReading Read(CWordList &list, const QString &name, const FormatReadOptions &options,
    const GivenLayout &layout, const VerbServices &services)
{
    if (name == StandardStream) {
        QFile *const input = services.console.TakeInput();
        return input == nullptr ? FormatReading() : ReadStream(list, *input, options, layout);
    }
    QFile file;
    if (OpenPipe(file, name)) {
        return ReadStream(list, file, options, layout);
    }
    if (layout.IsEmpty()) {
        return ReadListFile(list, name, options);
    }
    return OpenRegularFile(file, name) ? ReadAs(list, file, QFileInfo(name).suffix().toLower(), layout, options)
                                       : FormatReading();
}

/// The name of a file for a sentence.
QString Named(const QString &name, const VerbServices &services, int standardStream)
{
    return name == StandardStream ? Filled(services, standardStream, {}) : name;
}

void TellOfLosses(
    const FormatLosses &losses, const QString &name, int introduction, const VerbServices &services)
{
    for (const FormatLoss &loss : losses) {
        Tell(services, introduction,
            {name, Filled(services, LossText(loss.kind), {QString::number(loss.count)})});
    }
}

/// Prints the content of a text file as text: a terminal would take some of it for commands.
void PrintToTerminal(QBuffer &content, CConsole &console)
{
    if (content.data().isValidUtf8()) {
        console.Print(QString::fromUtf8(content.data()));
        return;
    }
    CTextFileReader reader;
    reader.Open(content);
    QString line;
    while (reader.ReadLine(line)) {
        console.Print(line + u'\n');
    }
}

}

QString FormatKeys(bool (Format::*can)() const)
{
    QStringList keys;
    for (const Format &format : Formats()) {
        if ((format.*can)()) {
            const QStringList suffixes = SuffixesNaming(format);
            keys.append(suffixes.isEmpty() ? QString(format.key)
                                           : QStringLiteral("%1 (%2)").arg(format.key, suffixes.join(u' ')));
        }
    }
    return keys.join(QStringLiteral(", "));
}

QString BackupFolder()
{
    const bool hasHome = qEnvironmentVariableIsSet("HOME") || qEnvironmentVariableIsSet("XDG_STATE_HOME");
    return hasHome ? CRecovery::UserFolder() : QString();
}

std::optional<ReadList> ReadListOf(const QString &name, const CArguments &arguments,
    const VerbServices &services, FormatReadOptions options, const GivenLayout &layout)
{
    if (const auto key = arguments.Text("from")) {
        options.format = FindFormat(*key);
        if (options.format == nullptr || !options.format->CanRead()) {
            Tell(services, Text::UnknownFormat, {*key, FormatKeys(&Format::CanRead)});
            return std::nullopt;
        }
    }
    ReadList read;
    const FormatReading reading = Read(read.list, name, options, layout, services);
    const QString shown = Named(name, services, Text::StandardInput);
    if (IsRefused(reading.result)) {
        Tell(services, ReadMessage(reading.result), {shown});
        return std::nullopt;
    }
    if (const int warning = ReadMessage(reading.result); warning != 0 && options.format == nullptr) {
        Tell(services, Text::AboutFile, {shown, Filled(services, warning, {})});
    }
    TellOfLosses(reading.losses, shown, Text::NotRead, services);
    read.format = reading.format;
    return read;
}

bool MayReplace(const QString &name, bool force, const VerbServices &services)
{
    if (name == StandardStream || force || !FileExists(name)) {
        return true;
    }
    Tell(services, Text::FileIsThere, {name});
    return false;
}

bool WriteResult(
    const QString &name, const VerbServices &services, const std::function<bool(QIODevice &)> &write)
{
    CConsole &console = services.console;
    bool written = false;
    if (name != StandardStream) {
        CSafeFile file;
        written = file.Open(name, BackupFolder()) && write(file.Device()) && file.Commit();
    } else if (console.IsOutputATerminal()) {
        QBuffer content;
        content.open(QIODevice::ReadWrite);
        written = write(content);
        PrintToTerminal(content, console);
    } else {
        // What fails to come out is told at the end.
        written = write(console.Output());
    }
    if (!written) {
        Tell(services, Text::CannotSave, {Named(name, services, Text::StandardOutput)});
    }
    return written;
}

CListOutput::CListOutput(const QString &name, const CArguments &arguments, const VerbServices &services)
    : m_name(name), m_mayReplace(arguments.Has("force")), m_forceUnicode(arguments.Has("unicode")),
      m_services(services)
{
    m_key = arguments.Text("to");
    if (m_key) {
        m_format = FindFormat(*m_key);
    } else {
        m_format = name == StandardStream ? &FormatOf(FormatId::Glossary) : FindFormatForWriting(name);
    }
}

bool CListOutput::MayWrite() const
{
    if (m_format == nullptr || !m_format->CanWrite()) {
        Tell(m_services, m_key ? Text::UnknownFormat : Text::UnknownSuffix,
            {m_key.value_or(m_name), FormatKeys(&Format::CanWrite)});
        return false;
    }
    return MayReplace(m_name, m_mayReplace, m_services);
}

bool CListOutput::Write(const CWordList &list, FormatWriteOptions options) const
{
    options.file.forceUnicode = m_forceUnicode;
    if (m_key && !options.separated && SuffixesNaming(*m_format).contains(*m_key)) {
        options.separated = SeparatedOptionsFor(u'.' + *m_key);
    }
    TellOfLosses(LossesOf(list, *m_format, options), Named(m_name, m_services, Text::StandardOutput),
        Text::NotWritten, m_services);
    if (m_name == StandardStream) {
        return WriteResult(m_name, m_services,
            [&](QIODevice &device) { return WriteListDevice(list, device, *m_format, options); });
    }
    options.file.backupFolder = BackupFolder();
    if (!WriteListFile(list, m_name, *m_format, options)) {
        Tell(m_services, Text::CannotSave, {m_name});
        return false;
    }
    return true;
}
