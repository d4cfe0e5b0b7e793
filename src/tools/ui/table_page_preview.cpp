// SPDX-License-Identifier: MIT
#include "tools/ui/table_page_preview.h"

#include <QPainter>

#include <algorithm>

CTablePagePreview::CTablePagePreview(std::shared_ptr<const CTablePages> pages, QWidget *parent)
    : QWidget(parent), m_pages(std::move(pages))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CTablePagePreview::ShowPage(int page)
{
    m_page = page;
    update();
}

QSize CTablePagePreview::sizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 60, fontMetrics().lineSpacing() * 36);
}

QSize CTablePagePreview::minimumSizeHint() const
{
    return QSize(fontMetrics().averageCharWidth() * 24, fontMetrics().lineSpacing() * 12);
}

void CTablePagePreview::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int Space = 6;
    const QSize paper = m_pages->PaperSize();
    const qreal scale =
        std::min((width() - 2 * Space) / qreal(paper.width()), (height() - 2 * Space) / qreal(paper.height()));
    if (scale <= 0) {
        return;
    }
    const QSizeF size = QSizeF(paper) * scale;
    const QRectF sheet(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.fillRect(sheet, Qt::white);
    if (m_pages->IsReady() && m_page < m_pages->PageCount()) {
        painter.save();
        painter.setClipRect(sheet);
        painter.translate(sheet.topLeft());
        painter.scale(scale, scale);
        m_pages->Paint(painter, m_page);
        painter.restore();
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(sheet);
}
