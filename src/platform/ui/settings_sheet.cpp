// SPDX-License-Identifier: MIT
#include "platform/ui/settings_sheet.h"

#include "platform/ui/scrolling_page.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShowEvent>
#include <QTabWidget>
#include <QVBoxLayout>

CSettingsSheet::CSettingsSheet(const QString &title, QWidget *parent, Buttons kind)
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
    if (kind == Buttons::OkCancelApply) {
        connect(buttons->addButton(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { Store(); });
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void CSettingsSheet::AddPage(QWidget *page, const QString &title)
{
    m_pages->addTab(new CScrollingPage(page), title);
}

void CSettingsSheet::ReplacePages(const std::function<void()> &addPages)
{
    const int shown = m_pages->currentIndex();
    while (m_pages->count() > 0) {
        QWidget *const page = m_pages->widget(0);
        m_pages->removeTab(0);
        delete page;
    }
    addPages();
    m_pages->setCurrentIndex(shown);
    m_pages->setFocus();
}

void CSettingsSheet::accept()
{
    Store();
    QDialog::accept();
}

void CSettingsSheet::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        FitToScreen(*this);
    }
    QDialog::showEvent(event);
}
