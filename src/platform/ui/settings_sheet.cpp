// SPDX-License-Identifier: MIT
#include "platform/ui/settings_sheet.h"

#include "platform/ui/scrolling_page.h"

#include <QDialogButtonBox>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

CSettingsSheet::CSettingsSheet(const QString &title, QWidget *parent)
    : QDialog(parent), m_pages(new QTabWidget(this))
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setAccessibleName(title);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void CSettingsSheet::AddPage(QWidget *page, const QString &title)
{
    m_pages->addTab(new CScrollingPage(page), title);
}

void CSettingsSheet::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        FitToScreen(*this);
    }
    QDialog::showEvent(event);
}
