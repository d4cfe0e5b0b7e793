// SPDX-License-Identifier: MIT
#include "commandline/ui/table_pdf_file.h"

#include "tools/ui/table_pdf.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QLocale>

#include <array>

namespace {

/// In the order of the choices.
constexpr std::array Papers = {
    QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::Letter, QPageSize::Legal};

QPageSize::PageSizeId PaperOf(const TablePdfOrder &order)
{
    if (order.paper) {
        return Papers[size_t(*order.paper)];
    }
    const bool isImperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return isImperial ? QPageSize::Letter : QPageSize::A4;
}

}

bool WriteTablePdf(const TablePdfOrder &order, const CTexts &texts)
{
    // Fonts are all that is needed of a window system; what the toolkit misses of it is no matter.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    std::array<char, 8> program = {"ordelin"};
    std::array<char, 10> option = {"-platform"};
    std::array<char, 10> platform = {"offscreen"};
    std::array<char *, 4> arguments = {program.data(), option.data(), platform.data(), nullptr};
    int count = int(arguments.size()) - 1;
    const QGuiApplication app(count, arguments.data());
    QCoreApplication::setApplicationName(QStringLiteral("Ordelin"));

    const QPageLayout paper(
        QPageSize(PaperOf(order)), order.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, {});
    const auto pages = std::make_shared<CTablePages>(order.cells, paper, QGuiApplication::font(), texts);
    CTablePdf pdf;
    QEventLoop loop;
    QObject::connect(&pdf, &CTablePdf::Ended, &loop, [&loop](bool written) { loop.exit(int(written)); });
    return pdf.Start(order.file, order.title, pages) && loop.exec() != 0;
}
