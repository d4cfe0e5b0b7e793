// SPDX-License-Identifier: MIT
#pragma once

#include <QPageLayout>
#include <QStringList>

#include <memory>

class QPagedPaintDevice;

/// How something is printed.
struct PrintChoice
{
    QString printer;
    /// What the print queue calls it.
    QString title;
    QPageLayout paper;
    int copies = 1;
    bool bothSides = false;
};

/// The printers that the user has. The one in tests has none of the system's.
class IPrinters
{
public:
    IPrinters() = default;
    virtual ~IPrinters() = default;
    IPrinters(const IPrinters &) = delete;
    IPrinters &operator=(const IPrinters &) = delete;

    /// By name, the user's default printer first. May take a moment.
    virtual QStringList Names() const = 0;
    virtual bool CanPrintBothSides(const QString &printer) const = 0;
    /// What is painted on it is printed when it goes. Its origin is the corner of the paper.
    virtual std::unique_ptr<QPagedPaintDevice> Open(const PrintChoice &choice) = 0;
    /// Lets nothing be printed of what was painted so far, on one that is painted on.
    virtual void Abort(QPagedPaintDevice &device) = 0;
};

/// Those of the system.
class CSystemPrinters : public IPrinters
{
public:
    QStringList Names() const override;
    bool CanPrintBothSides(const QString &printer) const override;
    std::unique_ptr<QPagedPaintDevice> Open(const PrintChoice &choice) override;
    void Abort(QPagedPaintDevice &device) override;
};
