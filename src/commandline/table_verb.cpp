// SPDX-License-Identifier: MIT
#include "commandline/table_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "commandline/table_options.h"
#include "commandline/table_pdf_order.h"
#include "document/text_numbers.h"
#include "fileformats/text_output.h"
#include "platform/plain_text.h"
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

/// By way of another file for standard output, since the writer of pages knows files alone.
VerbResult WritePdf(TablePdfOrder order, const VerbServices &services)
{
    if (order.file != StandardStream) {
        if (!services.writePdf(order)) {
            Tell(services, Text::CannotSave, {order.file});
            return VerbResult::Failed;
        }
        return VerbResult::Done;
    }
    if (services.console.IsOutputATerminal()) {
        Tell(services, Text::NotToTerminal);
        return VerbResult::Failed;
    }
    const QTemporaryDir folder;
    order.file = folder.filePath(QStringLiteral("table.pdf"));
    QFile file(order.file);
    const bool written = WriteResult(StandardStream.toString(), services, [&](QIODevice &device) {
        if (!services.writePdf(order) || !file.open(QIODevice::ReadOnly)) {
            return false;
        }
        const QByteArray bytes = file.readAll();
        return device.write(bytes) == bytes.size();
    });
    return written ? VerbResult::Done : VerbResult::Failed;
}

bool WriteRows(const ITableWriter &writer, QIODevice &device, TextEncoding encoding)
{
    CTextOutput output(device, encoding, false);
    const std::atomic<bool> keepRunning = true;
    const auto write = [&output](const QString &piece) {
        output.Write(piece);
        return true;
    };
    return WriteTable(writer, write, keepRunning) && output.Finish();
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
        const QString title =
            settings.showTitle ? settings.title : QFileInfo(arguments.Files().constFirst()).completeBaseName();
        return WritePdf({.cells = cells,
                            .file = output,
                            .title = OneLine(title),
                            .paper = arguments.Choice("paper"),
                            .isLandscape = arguments.Has("landscape")},
            services);
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
