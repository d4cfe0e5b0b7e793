// SPDX-License-Identifier: MIT
#include "tools/ui/table_guide.h"

#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"
#include "tools/ui/table_guide1.h"
#include "tools/ui/table_guide2.h"
#include "tools/ui/table_guide3.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QShowEvent>
#include <QStackedWidget>

CTableGuide::CTableGuide(const TableGuideServices &services, std::vector<int> selection, TablePaper &paper,
    IPrinters &printers, QWidget *parent)
    : QDialog(parent), m_form(services, std::move(selection)), m_spoken(new CSpokenText(this)),
      m_heading(MakeLabel({}, this)), m_pages(new QStackedWidget(this)),
      m_result(new CTableGuide4({m_form, services.prompt, printers, paper, *m_spoken}))
{
    setObjectName(QStringLiteral("tableGuide"));
    setWindowTitle(services.texts.Get(Text::TableGuideTitle));
    setWindowModality(Qt::WindowModal);
    QFont large = font();
    large.setBold(true);
    m_heading->setFont(large);
    m_heading->setObjectName(QStringLiteral("heading"));
    auto *const columns = new CTableGuide1(m_form);
    AddPage(columns);
    AddPage(new CTableGuide2(m_form));
    AddPage(new CTableGuide3(m_form));
    AddPage(m_result);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_pages, 1);
    layout->addWidget(MakeButtons());
    connect(m_result, &CTableGuide4::WorkingChanged, this, &CTableGuide::UpdateEnabled);
    connect(columns, &CTableGuide1::ColumnsChanged, this, &CTableGuide::UpdateEnabled);
    auto *const help = new QShortcut(Qt::Key_F1, this);
    help->setAutoRepeat(false);
    connect(help, &QShortcut::activated, this, services.showHelp);
    ShowPage(0);
    FitToScreen(*this);
    NoticeHeldKeys(*this);
}

void CTableGuide::AddPage(QWidget *page)
{
    m_pages->addWidget(new CScrollingPage(page, m_pages));
}

QPushButton *CTableGuide::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_form.Texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

QWidget *CTableGuide::MakeButtons()
{
    auto *const bar = new QWidget(this);
    m_back = MakeButton(Text::TableBack, "back");
    m_next = MakeButton(Text::TableNext, "next");
    m_close = MakeButton(Text::Cancel, "close");
    connect(m_back, &QPushButton::clicked, this, [this] { ShowPage(m_pages->currentIndex() - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { ShowPage(m_pages->currentIndex() + 1); });
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    layout->addStretch(1);
    layout->addWidget(m_back);
    layout->addWidget(m_next);
    layout->addSpacing(fontMetrics().averageCharWidth());
    layout->addWidget(m_close);
    return bar;
}

void CTableGuide::ShowPage(int page)
{
    constexpr std::array Titles = {
        Text::TableContentsPage, Text::TableTextPage, Text::TableLookPage, Text::TableResultPage};
    const CTexts &texts = m_form.Texts();
    const bool isResult = page == PageCount - 1;
    m_result->Stop();
    m_pages->setCurrentIndex(page);
    const QString heading = texts.Fill(Text::TableStep,
        {QString::number(page + 1), QString::number(PageCount), texts.Get(Titles[size_t(page)])});
    m_heading->setText(heading);
    UpdateEnabled();
    m_next->setDefault(!isResult);
    if (isVisible()) {
        m_spoken->Say(heading); // At first it is read out with the window.
    }
    FocusPage();
    if (isResult) {
        m_result->Make();
    }
}

void CTableGuide::FocusPage()
{
    // The first control of the page that takes the focus.
    QWidget *const page = m_pages->currentWidget();
    for (QWidget *next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
        const auto *const radio = qobject_cast<QRadioButton *>(next);
        // Tab leads to the one of a group that had the focus last.
        const bool takesFocus =
            radio != nullptr ? radio->isChecked() : (next->focusPolicy() & Qt::TabFocus) != 0;
        if (takesFocus && next->isEnabledTo(this) && next->isVisibleTo(page) && page->isAncestorOf(next)) {
            next->setFocus();
            return;
        }
    }
    m_close->setFocus();
}

void CTableGuide::UpdateEnabled()
{
    if (m_back != nullptr) {
        const int page = m_pages->currentIndex();
        m_back->setEnabled(page > 0);
        m_next->setEnabled(page < PageCount - 1 && m_form.CanGoOn());
        const bool isDone = page == PageCount - 1 && !m_result->IsWorking();
        m_close->setText(m_form.Texts().Get(isDone ? Text::Close : Text::Cancel));
    }
}

void CTableGuide::reject()
{
    if (m_result->IsWorking()) {
        m_result->Cancel();
    } else {
        QDialog::reject();
    }
}

void CTableGuide::closeEvent(QCloseEvent *event)
{
    m_result->Stop();
    QDialog::closeEvent(event);
}

void CTableGuide::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        FocusPage();
    }
    QDialog::showEvent(event);
}
