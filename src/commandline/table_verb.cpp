// SPDX-License-Identifier: MIT
#include "commandline/table_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "commandline/table_options.h"
#include "fileformats/text_file_writer.h"
#include "platform/safe_file.h"
#include "resources/texts.h"
#include "tools/table_writer.h"

#include <QFileInfo>
#include <QTemporaryDir>

namespace {

enum class TableFormat { Html = 0, Text = 1, Pdf = 2 };

/// Missing for a name that tells none.
std::optional<TableFormat> FormatOf(const QString &name, const CArguments &arguments)
{
    if (const auto choice = arguments.Choice("format")) {
        return TableFormat(*choice);
    }
    const QString suffix = QFileInfo(name).suffix().toLower();
    if (name == StandardStream || suffix == QStringLiteral("html") || suffix == QStringLiteral("htm")) {
        return TableFormat::Html;
    }
    if (suffix == QStringLiteral("txt")) {
        return TableFormat::Text;
    }
    return suffix == QStringLiteral("pdf") ? std::optional(TableFormat::Pdf) : std::nullopt;
}

/// Where the pages go to a file first, since their writer knows no other place.
bool WritePdf(const CTableCells &cells, const QString &name, const VerbServices &services)
{
    if (name != StandardStream) {
        return services.writePdf(cells, name);
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("table.pdf"));
    QFile file(path);
    return services.writePdf(cells, path) && file.open(QIODevice::ReadOnly)
        && WriteResult(name, services, [&file](QIODevice &device) {
               const QByteArray bytes = file.readAll();
               return device.write(bytes) == bytes.size();
           });
}

bool WriteRows(const ITableWriter &writer, QIODevice &device, TextEncoding encoding)
{
    CTextFileWriter file;
    file.Open(device, encoding);
    const std::atomic<bool> keepRunning = true;
    return WriteTable(
               writer,
               [&file](const QString &piece) {
                   file.Write(piece);
                   return true;
               },
               keepRunning)
        && file.Close();
}

}

VerbResult RunTable(const CArguments &arguments, const VerbServices &services)
{
    const QString output = arguments.Files().value(1, StandardStream.toString());
    const auto format = FormatOf(output, arguments);
    if (!format) {
        Tell(services, Text::UnknownSuffix, {output, QStringLiteral("html, txt, pdf")});
        return VerbResult::Failed;
    }
    const auto options = TableSettingsOf(arguments, services);
    if (!options || !MayReplace(output, arguments.Has("force"), services)) {
        return VerbResult::Failed;
    }
    const auto read = ReadListOf(arguments.Files().constFirst(), arguments, services);
    if (!read) {
        return VerbResult::Failed;
    }
    CreateTableSettings settings = *options;
    settings.htmlFormat = *format != TableFormat::Text;
    CTableCells cells(read->list, {}, settings, services.texts, services.today);
    if (*format == TableFormat::Pdf) {
        if (services.console.IsOutputATerminal() && output == StandardStream) {
            Tell(services, Text::NotToTerminal);
            return VerbResult::Failed;
        }
        if (!WritePdf(cells, output, services)) {
            Tell(services, Text::CannotSave, {output});
            return VerbResult::Failed;
        }
        return VerbResult::Done;
    }
    const bool isPage = *format == TableFormat::Html;
    const std::unique_ptr<ITableWriter> writer =
        isPage ? MakeHtmlTableWriter(std::move(cells), services.texts) : MakeTextTableWriter(std::move(cells));
    const TextEncoding encoding = isPage ? TextEncoding::Ansi : TextEncoding::Utf8;
    return WriteResult(
               output, services, [&](QIODevice &device) { return WriteRows(*writer, device, encoding); })
        ? VerbResult::Done
        : VerbResult::Failed;
}
