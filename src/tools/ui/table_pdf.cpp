// SPDX-License-Identifier: MIT
#include "tools/ui/table_pdf.h"

#include <QCoreApplication>

#include <limits>

CTablePdf::CTablePdf(QObject *parent) : QObject(parent)
{
    connect(&m_writer, &CTablePageWriter::Ended, this, [this](bool succeeded) {
        m_device.reset();
        if (!succeeded) {
            m_file.Cancel();
        }
        Q_EMIT Ended(succeeded && m_file.Commit());
    });
}

CTablePdf::~CTablePdf()
{
    Stop();
}

bool CTablePdf::Start(const QString &file, const QString &title, const std::shared_ptr<CTablePages> &pages)
{
    Stop();
    m_path = file;
    if (!m_file.Open(file)) {
        return false;
    }
    m_device.emplace(&m_file.Device());
    m_device->setResolution(CTablePages::UnitsPerInch);
    m_device->setPageLayout(pages->Paper());
    m_device->setTitle(title);
    m_device->setCreator(QCoreApplication::applicationName());
    if (!m_writer.Start(pages, *m_device, 0, std::numeric_limits<int>::max())) {
        Stop();
        return false;
    }
    return true;
}

void CTablePdf::Stop()
{
    m_writer.Stop();
    m_device.reset();
    m_file.Cancel();
}
