// SPDX-License-Identifier: MIT
#include "tools/ui/printers.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>

QStringList CSystemPrinters::Names() const
{
    QStringList names = QPrinterInfo::availablePrinterNames();
    const QString first = QPrinterInfo::defaultPrinterName();
    if (names.removeOne(first)) {
        names.prepend(first);
    }
    return names;
}

bool CSystemPrinters::CanPrintBothSides(const QString &printer) const
{
    const QList<QPrinter::DuplexMode> modes = QPrinterInfo::printerInfo(printer).supportedDuplexModes();
    return modes.contains(QPrinter::DuplexAuto) || modes.contains(QPrinter::DuplexLongSide);
}

std::unique_ptr<QPagedPaintDevice> CSystemPrinters::Open(const PrintChoice &choice)
{
    auto printer =
        std::make_unique<QPrinter>(QPrinterInfo::printerInfo(choice.printer), QPrinter::HighResolution);
    printer->setDocName(choice.title);
    printer->setCreator(QCoreApplication::applicationName());
    printer->setFullPage(true);
    printer->setPageSize(choice.paper.pageSize());
    printer->setPageOrientation(choice.paper.orientation());
    printer->setCopyCount(choice.copies);
    if (choice.bothSides) {
        const bool isPortrait = choice.paper.orientation() == QPageLayout::Portrait;
        printer->setDuplex(isPortrait ? QPrinter::DuplexLongSide : QPrinter::DuplexShortSide);
    } else {
        printer->setDuplex(QPrinter::DuplexNone);
    }
    return printer;
}

void CSystemPrinters::Abort(QPagedPaintDevice &device)
{
    if (auto *const printer = dynamic_cast<QPrinter *>(&device)) {
        printer->abort();
    }
}
