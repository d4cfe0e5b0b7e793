// SPDX-License-Identifier: MIT
#include "tools/ui/table_page_writer.h"

#include <QPagedPaintDevice>

#include <algorithm>

CTablePageWriter::CTablePageWriter(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &CTablePageWriter::GoOn);
}

CTablePageWriter::~CTablePageWriter()
{
    Stop();
}

bool CTablePageWriter::Start(std::shared_ptr<CTablePages> pages, QPagedPaintDevice &device, int first, int last)
{
    Stop();
    m_pages = std::move(pages);
    m_device = &device;
    m_next = first;
    m_last = last;
    m_isFirst = true;
    if (!m_painter.begin(&device)) {
        return false;
    }
    m_timer.start();
    return true;
}

void CTablePageWriter::Stop()
{
    m_timer.stop();
    if (m_painter.isActive()) {
        m_painter.end();
    }
    m_pages.reset();
}

void CTablePageWriter::GoOn()
{
    if (!m_pages->IsReady()) {
        m_pages->LayOutMore();
        Q_EMIT LaidOut(m_pages->PercentDone());
        return;
    }
    if (m_next > std::min(m_last, m_pages->PageCount() - 1)) {
        End(true);
        return;
    }
    if (!m_isFirst && !m_device->newPage()) {
        End(false);
        return;
    }
    m_isFirst = false;
    Q_EMIT PageBegun(m_next, m_pages->PageCount());
    const qreal scale = m_painter.device()->logicalDpiX() / qreal(CTablePages::UnitsPerInch);
    m_painter.resetTransform();
    m_painter.scale(scale, scale);
    m_pages->Paint(m_painter, m_next++);
}

void CTablePageWriter::End(bool succeeded)
{
    m_timer.stop();
    const bool complete = m_painter.end();
    m_pages.reset();
    Q_EMIT Ended(succeeded && complete);
}
