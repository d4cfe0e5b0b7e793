// SPDX-License-Identifier: MIT
#include "tools/ui/table_print_dialog.h"

#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"
#include "tools/ui/table_page_preview.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QPushButton>

namespace {

constexpr NumberRange Copies{1, 999};

}

CTablePrintDialog::CTablePrintDialog(
    const Services &services, std::shared_ptr<CTablePages> pages, const QString &title, QWidget *parent)
    : QDialog(parent), m_services(services), m_pages(std::move(pages)), m_title(title),
      m_spoken(new CSpokenText(this))
{
    setObjectName(QStringLiteral("tablePrint"));
    setWindowTitle(services.texts.Get(Text::PrintTitle));
    setWindowModality(Qt::WindowModal);
    auto *const top = new QHBoxLayout;
    top->addWidget(MakePreview(), 1);
    top->addWidget(MakeChoices());
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addWidget(MakeButtons());
    connect(&m_writer, &CTablePageWriter::PageBegun, this, [this](int page, int count) {
        m_message->setText(
            m_services.texts.Fill(Text::PrintPages, {QString::number(page + 1), QString::number(count)}));
    });
    connect(&m_writer, &CTablePageWriter::Ended, this, &CTablePrintDialog::PrintingEnded);
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] {
        UpdateEnabled();
        m_close->setDefault(true);
        m_close->setFocus();
    });
    ShowPage(0);
    if (m_printer->count() == 0) {
        ShowMessage(services.texts.Get(Text::PrintNoPrinter));
    } else {
        PrinterChosen();
    }
    UpdateEnabled();
    (m_print->isEnabled() ? m_print : m_next)->setFocus();
    FitToScreen(*this);
    NoticeHeldKeys(*this);
}

CTablePrintDialog::~CTablePrintDialog()
{
    if (m_device != nullptr) {
        m_services.printers.Abort(*m_device);
    }
    m_writer.Stop();
}

QPushButton *CTablePrintDialog::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_services.texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

QWidget *CTablePrintDialog::MakePreview()
{
    auto *const side = new QWidget(this);
    m_preview = new CTablePagePreview(m_pages, side);
    m_preview->setObjectName(QStringLiteral("pagePreview"));
    m_preview->setAccessibleName(m_services.texts.Get(Text::TablePreview));
    m_pageLabel = MakeLabel({}, side);
    m_pageLabel->setObjectName(QStringLiteral("pageLabel"));
    m_pageLabel->setAlignment(Qt::AlignCenter);
    m_previous = MakeButton(Text::PrintPreviousPage, "previousPage");
    m_next = MakeButton(Text::PrintNextPage, "nextPage");
    connect(m_previous, &QPushButton::clicked, this, [this] { ShowPage(m_page - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { ShowPage(m_page + 1); });
    auto *const line = new QHBoxLayout;
    line->addWidget(m_previous);
    line->addWidget(m_pageLabel, 1);
    line->addWidget(m_next);
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(m_preview, 1);
    layout->addLayout(line);
    return side;
}

QWidget *CTablePrintDialog::MakeChoices()
{
    const CTexts &texts = m_services.texts;
    auto *const page = new QWidget;
    m_choices = page;
    auto *const form = new QFormLayout(page);
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    m_printer = new QComboBox(page);
    m_printer->setObjectName(QStringLiteral("printer"));
    m_printer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_printer->setMinimumContentsLength(16);
    for (const QString &name : m_services.printers.Names()) {
        m_printer->addItem(Isolated(ShownShort(OneLine(name), 60)), name);
    }
    connect(m_printer, &QComboBox::currentIndexChanged, this, &CTablePrintDialog::PrinterChosen);
    AddLabelledRow(*form, texts.Get(Text::PrintPrinter), m_printer);

    const NumberRange pages{1, m_pages->PageCount()};
    const auto addNumber = [&](const char *name, int caption, const NumberRange &range, int number) {
        auto *const field = new CNumberField(range, number, page);
        field->setObjectName(QLatin1StringView(name));
        AddRow(*form, texts.Get(caption), field);
        return field;
    };
    m_copies = addNumber("copies", Text::PrintCopies, Copies, 1);
    m_from = addNumber("fromPage", Text::PrintFromPage, pages, pages.lowest);
    m_to = addNumber("toPage", Text::PrintToPage, pages, pages.highest);
    m_bothSides = new QCheckBox(texts.Get(Text::PrintBothSides), page);
    m_bothSides->setObjectName(QStringLiteral("bothSides"));
    m_bothSides->setAccessibleName(CaptionReadOut(m_bothSides->text()));
    form->addRow(m_bothSides);
    return new CScrollingPage(page, this);
}

QWidget *CTablePrintDialog::MakeButtons()
{
    auto *const bar = new QWidget(this);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    m_message = MakeWrappedLabel({}, bar);
    m_message->setObjectName(QStringLiteral("message"));
    m_print = MakeButton(Text::PrintStart, "print");
    m_print->setDefault(true);
    m_close = MakeButton(Text::Close, "close");
    connect(m_print, &QPushButton::clicked, this, &CTablePrintDialog::Print);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_print);
    layout->addWidget(m_close);
    return bar;
}

void CTablePrintDialog::ShowPage(int page)
{
    m_page = NumberRange{0, m_pages->PageCount() - 1}.Clamped(page);
    m_preview->ShowPage(m_page);
    const QString text = m_services.texts.Fill(
        Text::TablePageOf, {QString::number(m_page + 1), QString::number(m_pages->PageCount())});
    m_pageLabel->setText(text);
    m_preview->setAccessibleDescription(text);
    if (isVisible()) {
        m_spoken->Say(text);
    }
    UpdateEnabled();
}

void CTablePrintDialog::PrinterChosen()
{
    const bool can = m_services.printers.CanPrintBothSides(m_printer->currentData().toString());
    m_bothSides->setEnabled(can);
    if (!can) {
        m_bothSides->setChecked(false);
    }
}

void CTablePrintDialog::UpdateEnabled()
{
    if (m_print == nullptr) {
        return; // While the window is made.
    }
    const bool working = m_writer.IsWorking() || m_pause.isActive();
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < m_pages->PageCount());
    m_choices->setEnabled(!working && m_printer->count() > 0);
    m_print->setEnabled(!working && m_printer->count() > 0);
}

void CTablePrintDialog::Print()
{
    const QString printer = m_printer->currentData().toString();
    m_device = m_services.printers.Open({.printer = printer,
        .title = m_title,
        .paper = m_pages->Paper(),
        .copies = m_copies->Entered(),
        .bothSides = m_bothSides->isChecked()});
    const int first = std::min(m_from->Entered(), m_to->Entered()) - 1;
    const int last = std::max(m_from->Entered(), m_to->Entered()) - 1;
    if (!m_writer.Start(m_pages, *m_device, first, last)) {
        PrintingEnded(false);
        return;
    }
    UpdateEnabled();
}

void CTablePrintDialog::PrintingEnded(bool succeeded)
{
    m_device.reset();
    const QString printer = m_printer->currentData().toString();
    if (succeeded) {
        m_pause.start(QApplication::doubleClickInterval()); // The second click prints nothing.
        ShowMessage(m_services.texts.Fill(Text::PrintDone, {ShownShort(OneLine(printer), 60)}));
        return;
    }
    UpdateEnabled();
    m_message->clear();
    m_services.prompt.Tell(
        m_services.texts.Prompt(Text::PrintFailed, {ShownShort(OneLine(printer), 60)}), PromptIcon::Warning);
}

void CTablePrintDialog::ShowMessage(const QString &message)
{
    m_message->setText(message);
    m_spoken->Say(message);
}

void CTablePrintDialog::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        ShowPage(m_page - 1);
        break;
    case Qt::Key_PageDown:
        ShowPage(m_page + 1);
        break;
    default:
        QDialog::keyPressEvent(event);
    }
}
