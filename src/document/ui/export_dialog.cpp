// SPDX-License-Identifier: MIT
#include "document/ui/export_dialog.h"

#include "document/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

CExportDialog::CExportDialog(CExportForm &form, QWidget *owner)
    : QDialog(owner), m_form(form), m_spoken(new CSpokenText(this)),
      m_save(new QPushButton(form.Texts().Get(Text::ExportSave), this))
{
    const CTexts &texts = form.Texts();
    setObjectName(QStringLiteral("export"));
    setWindowTitle(texts.Get(Text::ExportTitle));
    m_save->setObjectName(QStringLiteral("save"));
    m_save->setDefault(true);
    auto *const cancel = new QPushButton(texts.Get(Text::Cancel), this);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setAutoDefault(false);
    connect(m_save, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_save);
    buttons->addWidget(cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(new CScrollingPage(MakePage(), this), 1);
    layout->addLayout(buttons);
    connect(&form, &CExportForm::Counted, this, [this] { Refresh(); });
    Refresh();
    FitToScreen(*this);
    NoticeHeldKeys(*this); // The key that chose the file shall not write it unread.
}

QWidget *CExportDialog::MakePage()
{
    const CTexts &texts = m_form.Texts();
    auto *const page = new QWidget;
    m_losses = MakeWrappedLabel({}, page);
    m_losses->setObjectName(QStringLiteral("losses"));
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins({});
    auto *const rows = new QFormLayout;
    layout->addLayout(rows);
    if (m_form.HasLayout()) {
        AddLayout(*rows, *page);
    }
    if (m_form.HasTerms()) {
        AddChoice(*rows, Text::ExportTerms,
            MakeChoice(page, "terms", m_form.TermChoices(), m_form.Terms(),
                [this](int index) { m_form.ChooseTerms(index); }));
    }
    if (m_form.HasAlternatives()) {
        AddChoice(*rows, Text::ExportAlternatives,
            MakeChoice(page, "alternatives", texts.Get(Text::ExportAlternativeMarks), m_form.Alternatives(),
                [this](int index) { m_form.ChooseAlternatives(index); }));
    }
    layout->addWidget(m_losses);
    layout->addWidget(MakeWrappedLabel(texts.Get(Text::ExportIsCopy), page));
    layout->addStretch(1);
    return page;
}

void CExportDialog::AddChoice(QFormLayout &rows, int caption, QComboBox *choice)
{
    AddLabelledRow(rows, m_form.Texts().Get(caption), choice);
    connect(choice, &QComboBox::currentTextChanged, this, &CExportDialog::Refresh);
}

QCheckBox *CExportDialog::AddCheck(
    QFormLayout &rows, const char *name, int caption, bool checked, const std::function<void(bool)> &choose)
{
    auto *const box = new QCheckBox(m_form.Texts().Get(caption), rows.parentWidget());
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(CaptionReadOut(box->text()));
    box->setChecked(checked);
    rows.addRow(box);
    connect(box, &QCheckBox::toggled, this, [this, choose](bool isChecked) {
        choose(isChecked);
        Refresh();
    });
    return box;
}

void CExportDialog::AddLayout(QFormLayout &rows, QWidget &page)
{
    AddChoice(rows, Text::ExportSeparator,
        MakeChoice(&page, "separator", m_form.Separators(), m_form.Separator(),
            [this](int index) { m_form.ChooseSeparator(index); }));
    AddChoice(rows, Text::ExportEncoding,
        MakeChoice(&page, "encoding", m_form.Texts().Get(Text::Encodings), m_form.Encoding(),
            [this](int index) { m_form.ChooseEncoding(index); }));
    AddCheck(rows, "heading", Text::ExportHeading, m_form.HasHeading(),
        [this](bool checked) { m_form.ChooseHeading(checked); });
    m_mark = AddCheck(rows, "mark", Text::ExportMark, m_form.WritesMark(),
        [this](bool checked) { m_form.ChooseMark(checked); });
}

void CExportDialog::Refresh(const QString &chosen)
{
    m_save->setEnabled(m_form.IsCounted()); // Nobody knows before what would be lost.
    if (m_mark != nullptr) {
        m_mark->setEnabled(m_form.CanHaveMark());
    }
    const QString losses = m_form.Losses();
    QStringList news;
    if (!chosen.isEmpty()) {
        news.append(chosen + u'.');
    }
    if (m_form.IsCounted() && losses != m_losses->text()) {
        news.append(losses);
    }
    if (isVisible() && !news.isEmpty()) {
        m_spoken->Say(news.join(u' '));
    }
    m_losses->setText(losses);
    setAccessibleDescription(losses);
}

QSize CExportDialog::sizeHint() const
{
    // With room for what another choice would lose.
    return QDialog::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 64, fontMetrics().lineSpacing() * 17});
}
