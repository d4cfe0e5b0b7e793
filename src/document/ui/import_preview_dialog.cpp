// SPDX-License-Identifier: MIT
#include "document/ui/import_preview_dialog.h"

#include "document/text_numbers.h"
#include "document/ui/import_row_delegate.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>

CImportPreviewDialog::CImportPreviewDialog(CImportPreview &preview, const CTexts &texts, QWidget *owner)
    : QDialog(owner), m_form(preview, texts), m_rows(m_form), m_entries(m_form), m_spoken(new CSpokenText(this))
{
    setObjectName(QStringLiteral("importPreview"));
    setWindowTitle(texts.Get(Text::PreviewTitle));
    m_rows.Renew();
    m_entries.Renew();
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(new CScrollingPage(MakeOptions(), this));
    layout->addWidget(MakeTables(), 1);
    layout->addWidget(MakeButtons());
    GoToColumn(0);
    Refresh();
    m_rowTable->setCurrentIndex(m_rows.index(0, 0));
    m_rowTable->setFocus();
    FitToScreen(*this);
    NoticeHeldKeys(*this); // The key that chose the file shall not import it unseen.
}

void CImportPreviewDialog::AddChoice(QGridLayout &rows, int row, int caption, QComboBox *choice)
{
    QLabel *const label = MakeLabel(m_form.Texts().Get(caption), choice->parentWidget());
    label->setBuddy(choice);
    choice->setAccessibleName(CaptionReadOut(label->text()));
    rows.addWidget(label, row, 0);
    rows.addWidget(choice, row, 1);
    connect(choice, &QComboBox::currentTextChanged, this, &CImportPreviewDialog::Refresh);
}

void CImportPreviewDialog::AddTermOption(
    QGridLayout &rows, const char *name, int caption, bool TermOptions::*option)
{
    auto *const box = new QCheckBox(m_form.Texts().Get(caption), rows.parentWidget());
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(CaptionReadOut(box->text()));
    box->setChecked(m_form.Terms().*option);
    const int place = rows.count();
    rows.addWidget(box, place, 0);
    connect(box, &QCheckBox::toggled, this, [this, option](bool checked) {
        TermOptions terms = m_form.Terms();
        terms.*option = checked;
        m_form.ChooseTerms(terms);
        Refresh();
    });
}

QWidget *CImportPreviewDialog::MakeOptions()
{
    const CTexts &texts = m_form.Texts();
    auto *const page = new QWidget;
    auto *const sides = new QHBoxLayout(page);
    sides->setContentsMargins({});
    auto *const layoutPart = new QWidget(page);
    auto *const rows = new QGridLayout(layoutPart);
    rows->setContentsMargins({});
    m_separator = MakeChoice(layoutPart, "separator", m_form.Separators().join(u'\n'), m_form.Separator(),
        [this](int index) { m_form.ChooseSeparator(index); });
    AddChoice(*rows, 0, Text::PreviewSeparator, m_separator);
    AddChoice(*rows, 1, Text::PreviewQuote,
        MakeChoice(layoutPart, "quote", texts.Get(Text::PreviewQuotes), m_form.Quote(),
            [this](int index) { m_form.ChooseQuote(index); }));
    m_encoding = MakeChoice(layoutPart, "encoding", texts.Get(Text::Encodings), m_form.Encoding(),
        [this](int index) { m_form.ChooseEncoding(index); });
    AddChoice(*rows, 2, Text::PreviewEncoding, m_encoding);
    m_encoding->setEnabled(m_form.Preview().IsFile());
    m_heading = new QCheckBox(texts.Get(Text::PreviewHeading), layoutPart);
    m_heading->setObjectName(QStringLiteral("heading"));
    m_heading->setAccessibleName(CaptionReadOut(m_heading->text()));
    rows->addWidget(m_heading, 3, 0, 1, 2);
    connect(m_heading, &QCheckBox::toggled, this, [this](bool checked) {
        m_form.ChooseHeading(checked);
        Refresh();
    });

    auto *const termPart = new QWidget(page);
    auto *const boxes = new QGridLayout(termPart);
    boxes->setContentsMargins({});
    AddTermOption(*boxes, "semicolons", Text::PreviewSemicolons, &TermOptions::semicolonsSeparate);
    AddTermOption(*boxes, "commas", Text::PreviewCommas, &TermOptions::commasSeparate);
    AddTermOption(*boxes, "slashes", Text::PreviewSlashes, &TermOptions::slashesSeparate);
    AddTermOption(*boxes, "brackets", Text::PreviewBrackets, &TermOptions::roundBracketsAreComments);
    sides->addWidget(layoutPart, 0, Qt::AlignTop);
    sides->addSpacing(fontMetrics().averageCharWidth() * 4);
    sides->addWidget(termPart, 1, Qt::AlignTop);
    if (page->sizeHint().width() > screen()->availableSize().width() * 9 / 10) {
        sides->setDirection(QBoxLayout::TopToBottom); // No room for them beside each other.
    }
    return page;
}

QTableView *CImportPreviewDialog::MakeTable(
    const char *name, int caption, CImportModel &model, QVBoxLayout &layout)
{
    QWidget *const part = layout.parentWidget();
    auto *const table = new QTableView(part);
    table->setObjectName(QLatin1StringView(name));
    QLabel *const label = MakeLabel(m_form.Texts().Get(caption), part);
    label->setBuddy(table);
    table->setAccessibleName(CaptionReadOut(label->text()));
    table->setModel(&model);
    table->setEditTriggers(QTableView::NoEditTriggers);
    table->setSelectionMode(QTableView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setCornerButtonEnabled(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    QHeaderView *const header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setDefaultSectionSize(fontMetrics().averageCharWidth() * 24);
    header->setStretchLastSection(true);
    table->setMinimumHeight(header->sizeHint().height() + fontMetrics().height() * 2);
    layout.setContentsMargins({});
    layout.addWidget(label);
    layout.addWidget(table, 1);
    return table;
}

QWidget *CImportPreviewDialog::MakeTables()
{
    auto *const tables = new QSplitter(Qt::Vertical, this);
    tables->setObjectName(QStringLiteral("tables"));
    tables->setChildrenCollapsible(false);
    auto *const rowPart = new QWidget(tables);
    auto *const rowLayout = new QVBoxLayout(rowPart);
    m_rowTable = MakeTable("rows", Text::PreviewRows, m_rows, *rowLayout);
    m_rowTable->setItemDelegate(new CImportRowDelegate(m_rowTable));
    QHeaderView *const header = m_rowTable->horizontalHeader();
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sectionClicked, this, &CImportPreviewDialog::ShowKindMenu);
    connect(m_rowTable->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex &current) {
            if (current.isValid()) {
                GoToColumn(current.column());
            }
        });
    m_kind = new QComboBox(rowPart);
    m_kind->setObjectName(QStringLiteral("kind"));
    m_kind->addItems(m_form.Kinds());
    m_kindLabel = MakeLabel({}, rowPart);
    m_kindLabel->setObjectName(QStringLiteral("kindLabel"));
    m_kindLabel->setBuddy(m_kind);
    connect(m_kind, &QComboBox::currentIndexChanged, this, [this](int kind) { ChooseKind(m_column, kind); });
    auto *const line = new QHBoxLayout;
    line->addWidget(m_kindLabel);
    line->addWidget(m_kind);
    line->addStretch(1);
    rowLayout->addLayout(line);

    auto *const entryPart = new QWidget(tables);
    MakeTable("entries", Text::PreviewEntries, m_entries, *new QVBoxLayout(entryPart));
    tables->addWidget(rowPart);
    tables->addWidget(entryPart);
    return tables;
}

QWidget *CImportPreviewDialog::MakeButtons()
{
    auto *const part = new QWidget(this);
    m_summary = MakeWrappedLabel({}, part);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_import = new QPushButton(m_form.Texts().Get(Text::PreviewImport), part);
    m_import->setObjectName(QStringLiteral("import"));
    m_import->setDefault(true);
    auto *const cancel = new QPushButton(m_form.Texts().Get(Text::Cancel), part);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setAutoDefault(false);
    connect(m_import, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_import);
    buttons->addWidget(cancel);
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(m_summary);
    layout->addLayout(buttons);
    return part;
}

void CImportPreviewDialog::GoToColumn(int column)
{
    m_column = column;
    m_kindLabel->setText(m_form.Texts().Fill(Text::PreviewColumnIs, {FormatNumber(column + 1)}));
    m_kind->setAccessibleName(CaptionReadOut(m_kindLabel->text()));
    const QSignalBlocker blocker(m_kind);
    m_kind->setCurrentIndex(m_form.Kind(column));
    ReadOutItem(*m_kind);
    m_kind->setEnabled(column < m_form.Preview().ColumnCount());
}

void CImportPreviewDialog::ShowKindMenu(int column)
{
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(
        CaptionReadOut(m_form.Texts().Fill(Text::PreviewColumnIs, {FormatNumber(column + 1)})));
    const QStringList kinds = m_form.Kinds();
    for (int kind = 0; kind < int(kinds.size()); ++kind) {
        QAction *const action = menu->addAction(kinds.at(kind), this, [this, column, kind] {
            m_rowTable->setCurrentIndex(m_rows.index(std::max(m_rowTable->currentIndex().row(), 0), column));
            ChooseKind(column, kind);
        });
        action->setCheckable(true);
        action->setChecked(kind == m_form.Kind(column));
    }
    const QHeaderView *const header = m_rowTable->horizontalHeader();
    menu->popup(
        header->viewport()->mapToGlobal(QPoint(header->sectionViewportPosition(column), header->height())));
}

void CImportPreviewDialog::ChooseKind(int column, int kind)
{
    m_form.ChooseKind(column, kind);
    Refresh();
}

void CImportPreviewDialog::Refresh(const QString &chosen)
{
    if (m_import == nullptr) {
        return; // While the window is made.
    }
    m_rows.Renew();
    m_entries.Renew();
    if (!m_rowTable->currentIndex().isValid()) {
        m_rowTable->setCurrentIndex(m_rows.index(0, 0));
    }
    GoToColumn(std::clamp(m_column, 0, std::max(m_form.Preview().ColumnCount() - 1, 0)));
    m_import->setEnabled(m_form.CanImport());
    ShowGuesses(chosen);
}

void CImportPreviewDialog::ShowGuesses(const QString &chosen)
{
    QStringList news;
    if (!chosen.isEmpty()) {
        news.append(chosen + u'.');
    }
    if (m_heading->isChecked() != m_form.HasHeading()) {
        const QSignalBlocker blocker(m_heading);
        m_heading->setChecked(m_form.HasHeading());
        news.append(m_form.HeadingInWords());
    }
    const QString columns = m_form.ColumnsInWords();
    if (columns != m_columns) {
        m_columns = columns;
        news.append(columns);
    }
    const QString summary = m_form.Summary();
    if (summary != m_summary->text()) {
        m_summary->setText(summary);
        news.append(summary);
    }
    if (isVisible() && !news.isEmpty()) {
        m_spoken->Say(news.join(u' '));
    }
}

QSize CImportPreviewDialog::sizeHint() const
{
    return QDialog::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 38});
}
