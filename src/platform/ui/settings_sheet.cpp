// SPDX-License-Identifier: MIT
#include "platform/ui/settings_sheet.h"

#include "platform/ui/scrolling_page.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

CSettingsSheet::CSettingsSheet(const QString &title, QWidget *parent, Buttons kind)
    : QDialog(parent), m_pages(new QTabWidget(this)),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setAccessibleName(title);
    m_buttons->setObjectName(QStringLiteral("buttons"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_buttons);
    if (kind == Buttons::OkCancelApply) {
        connect(
            m_buttons->addButton(QDialogButtonBox::Apply), &QPushButton::clicked, this, [this] { Store(); });
    }
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    FitToScreen(*this);
}

void CSettingsSheet::AddPage(QWidget *page, const QString &title)
{
    m_pages->addTab(new CScrollingPage(page), title);
    // By Tab the buttons are reached after the page, in the order of the parents' children.
    m_buttons->setParent(nullptr);
    layout()->addWidget(m_buttons);
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
