// SPDX-License-Identifier: MIT
#include "tools/ui/table_guide4.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"
#include "tools/table_guide_form.h"
#include "tools/text_numbers.h"
#include "tools/ui/table_print_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// In the order of their names.
constexpr std::array Papers = {
    QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::Letter, QPageSize::Legal};

}

TablePaper UsualPaper()
{
    const bool isImperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    const auto *const usual = std::ranges::find(Papers, isImperial ? QPageSize::Letter : QPageSize::A4);
    return {.size = int(usual - Papers.begin())};
}

CTableGuide4::CTableGuide4(const Services &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_message(MakeWrappedLabel({}, this)),
      m_preview(new QPlainTextEdit(this)), m_show(MakeButton(Text::TableShowPage, "showPage")),
      m_save(MakeButton(Text::TableSave, "save"))
{
    m_message->setObjectName(QStringLiteral("message"));
    m_message->setMinimumHeight(fontMetrics().lineSpacing() * 4);
    m_message->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(services.form.Texts().Get(Text::TablePreview));
    m_preview->setReadOnly(true);
    m_preview->setTabChangesFocus(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_preview->setTabStopDistance(fontMetrics().averageCharWidth() * 20);
    m_preview->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    // A long name of a file makes the window no wider.
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(m_show);
    buttons->addWidget(m_save);
    buttons->addStretch(1);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_message);
    layout->addWidget(m_preview, 1);
    layout->addLayout(buttons);
    layout->addWidget(MakePaper());

    connect(m_show, &QPushButton::clicked, this, &CTableGuide4::OpenPage);
    connect(m_save, &QPushButton::clicked, this, &CTableGuide4::Save);
    connect(&m_maker, &CTableMaker::Ended, this, &CTableGuide4::ShowResult);
    const CTexts &texts = services.form.Texts();
    const auto showLaidOut = [this, &texts](int percent) {
        ShowProgress(texts.Fill(Text::TableLaidOut, {QString::number(percent)}));
    };
    connect(&m_pdf.Writer(), &CTablePageWriter::LaidOut, this, showLaidOut);
    connect(&m_pdf.Writer(), &CTablePageWriter::PageBegun, this, [this, &texts](int page, int count) {
        ShowProgress(texts.Fill(Text::TablePdfPages, {QString::number(page + 1), QString::number(count)}));
    });
    connect(&m_pdf, &CTablePdf::Ended, this, [this](bool written) {
        WorkEnds();
        if (written) {
            Saved(m_pdf.File());
        } else {
            Failed(m_pdf.File());
        }
    });
    m_layingOut.setInterval(0);
    connect(&m_layingOut, &QTimer::timeout, this, [this, showLaidOut] {
        m_pages->LayOutMore();
        showLaidOut(m_pages->PercentDone());
        if (m_pages->IsReady()) {
            m_layingOut.stop();
            WorkEnds();
            OpenPrintWindow();
        }
    });
    UpdateEnabled();
}

QWidget *CTableGuide4::MakePaper()
{
    const CTexts &texts = m_services.form.Texts();
    m_paper = new QGroupBox(texts.Get(Text::TablePaperGroup), this);
    m_paper->setObjectName(QStringLiteral("paper"));
    m_paper->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_size = MakeChoice(m_paper, "paperSize", texts.Get(Text::TablePapers), m_services.paper.size);
    m_orientation = MakeChoice(
        m_paper, "paperOrientation", texts.Get(Text::TableOrientations), m_services.paper.orientation);
    QPushButton *const print = MakeButton(Text::TablePrint, "printTable");
    QPushButton *const pdf = MakeButton(Text::TableSavePdf, "savePdf");
    connect(print, &QPushButton::clicked, this, &CTableGuide4::Print);
    connect(pdf, &QPushButton::clicked, this, &CTableGuide4::SavePdf);
    auto *const choices = new QFormLayout;
    AddRow(*choices, texts.Get(Text::TablePaper), m_size);
    AddRow(*choices, texts.Get(Text::TableOrientation), m_orientation);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(print);
    buttons->addWidget(pdf);
    buttons->addStretch(1);
    auto *const layout = new QVBoxLayout(m_paper);
    layout->addLayout(choices);
    layout->addLayout(buttons);
    return m_paper;
}

QPushButton *CTableGuide4::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_services.form.Texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

void CTableGuide4::Make()
{
    Stop();
    const bool asPage = m_services.form.Options().htmlFormat;
    m_hasPage = false;
    m_preview->clear();
    m_preview->setVisible(!asPage);
    m_begunBy = asPage ? static_cast<QWidget *>(m_show) : m_preview;
    if (m_services.form.Make(m_maker)) {
        ShowMessage(m_services.form.Texts().Get(Text::TableIsMade));
    } else {
        ShowMessage(m_services.form.Texts().Get(Text::TableNotMade));
    }
    UpdateEnabled();
}

void CTableGuide4::Stop()
{
    ++m_run;
    m_maker.Stop();
    m_pdf.Stop();
    m_layingOut.stop();
    m_pages.reset();
}

void CTableGuide4::Cancel()
{
    Stop();
    m_lasting = m_services.form.Texts().Get(Text::TableWorkCancelled);
    WorkEnds();
    m_services.spoken.Say(m_lasting);
}

void CTableGuide4::ShowResult(const TableResult &result)
{
    const CTexts &texts = m_services.form.Texts();
    const QString &file = result.target.file;
    if (file.isEmpty()) {
        m_preview->setPlainText(result.shown);
        ShowMessage(texts.Get(result.isCut ? Text::TableIsCut : Text::TableIsShown));
    } else if (result.target.inPrivateFolder) {
        m_hasPage = result.succeeded;
    }
    WorkEnds();
    if (file.isEmpty()) {
        return;
    }
    if (result.target.inPrivateFolder) {
        if (result.succeeded) {
            OpenPage();
        } else {
            ShowMessage(texts.Get(Text::TableNotMade));
            m_services.form.TellFailure(file);
        }
    } else if (!result.succeeded) {
        Failed(file);
    } else {
        Saved(file);
        if (result.lossy) {
            m_services.form.TellLoss(file);
        }
    }
}

void CTableGuide4::OpenPage()
{
    const CTexts &texts = m_services.form.Texts();
    ShowMessage(texts.Get(Text::TablePageOpened));
    m_services.form.OpenPage([this, guard = QPointer(this), run = m_run] {
        if (guard != nullptr && run == m_run) {
            ShowMessage(m_services.form.Texts().Get(Text::TablePageNotOpened));
        }
    });
}

void CTableGuide4::Save()
{
    if (const std::optional<TableToSave> table = m_services.form.AskWhereToSave()) {
        WorkBegins();
        m_services.form.Save(m_maker, *table);
        ShowProgress(m_services.form.Texts().Get(Text::TableIsMade));
        UpdateEnabled();
    }
}

std::shared_ptr<CTablePages> CTableGuide4::Pages() const
{
    const QPageSize size(Papers[size_t(m_services.paper.size)]);
    const auto orientation = m_services.paper.orientation == 0 ? QPageLayout::Portrait : QPageLayout::Landscape;
    return std::make_shared<CTablePages>(m_services.form.Cells(), QPageLayout(size, orientation, {}),
        QApplication::font(), m_services.form.Texts());
}

void CTableGuide4::Print()
{
    WorkBegins();
    m_pages = Pages();
    m_layingOut.start();
    UpdateEnabled();
}

void CTableGuide4::OpenPrintWindow()
{
    auto *const dialog =
        new CTablePrintDialog({m_services.form.Texts(), m_services.prompt, m_services.printers},
            std::exchange(m_pages, nullptr), m_services.form.Name(), window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void CTableGuide4::SavePdf()
{
    const QString file = m_services.form.AskForPdf();
    if (file.isEmpty()) {
        return;
    }
    WorkBegins();
    if (!m_pdf.Start(file, m_services.form.Name(), Pages())) {
        WorkEnds();
        Failed(file);
    }
    UpdateEnabled();
}

void CTableGuide4::Saved(const QString &file)
{
    const QString name = ShownShort(OneLine(QFileInfo(file).fileName()), 100);
    ShowMessage(m_services.form.Texts().Fill(Text::TableSaved, {name}));
}

void CTableGuide4::Failed(const QString &file)
{
    m_services.form.TellFailure(file);
}

void CTableGuide4::ShowMessage(const QString &message)
{
    m_lasting = message;
    m_message->setText(message);
    m_services.spoken.Say(message);
}

bool CTableGuide4::IsWorking() const
{
    return m_maker.IsWorking() || m_pdf.IsWorking() || m_layingOut.isActive();
}

void CTableGuide4::WorkBegins()
{
    m_begunBy = QApplication::focusWidget();
}

void CTableGuide4::WorkEnds()
{
    m_message->setText(m_lasting);
    UpdateEnabled();
    if (m_begunBy != nullptr && isVisible()) {
        m_begunBy->setFocus();
    }
}

void CTableGuide4::UpdateEnabled()
{
    const bool idle = !IsWorking();
    m_show->setEnabled(idle && m_hasPage);
    m_save->setEnabled(idle);
    m_paper->setEnabled(idle);
    Q_EMIT WorkingChanged();
}
