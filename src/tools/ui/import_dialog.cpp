// SPDX-License-Identifier: MIT
#include "tools/ui/import_dialog.h"

#include "platform/file_name.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "platform/ui/elided_label.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/row_table.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"
#include "tools/text_numbers.h"
#include "tools/ui/file_filter_fields.h"
#include "tools/ui/file_search_window.h"
#include "tools/ui/file_status_delegate.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include <algorithm>

CImportDialog::CImportDialog(const FileToolServices &services, QWidget *owner)
    : QDialog(owner), m_services(services), m_importing(services.document, services.import, services.texts),
      m_count(MakeLabel({}, this)), m_list(new QTableView(this)),
      m_choose(MakeButton(Text::ImportChooseFiles, "chooseFiles")),
      m_search(MakeButton(Text::ImportSearch, "searchFiles")),
      m_remove(MakeButton(Text::ImportRemove, "removeFiles")), m_filterPart(MakeFilter()),
      m_progressPart(MakeProgress()), m_line(new CElidedLabel(this)), m_spoken(new CSpokenText(this))
{
    setObjectName(QStringLiteral("importWindow"));
    setWindowTitle(services.texts.Get(Text::ImportTitle));
    setWindowModality(Qt::WindowModal);
    setAcceptDrops(true);
    m_import = MakeButton(Text::ImportButton, "import");
    m_import->setDefault(true);
    m_cancel = MakeButton(Text::Cancel, "cancel");
    m_count->setObjectName(QStringLiteral("fileCount"));
    m_line->setObjectName(QStringLiteral("statusLine"));
    MakeList();
    m_progressPart->hide();

    auto *const fileButtons = new QVBoxLayout;
    for (QPushButton *const button : {m_choose, m_search, m_remove}) {
        fileButtons->addWidget(button);
    }
    fileButtons->addStretch(1);
    auto *const files = new QHBoxLayout;
    files->addWidget(m_list, 1);
    files->addLayout(fileButtons);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_import);
    buttons->addWidget(m_cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_count);
    layout->addLayout(files, 1);
    layout->addWidget(m_filterPart);
    layout->addWidget(m_progressPart);
    layout->addWidget(m_line);
    layout->addLayout(buttons);

    connect(m_choose, &QPushButton::clicked, this, [this] { m_importing.ChooseFiles(m_services.chooser); });
    connect(m_search, &QPushButton::clicked, this, &CImportDialog::OpenSearch);
    connect(m_remove, &QPushButton::clicked, this, &CImportDialog::RemoveSelected);
    connect(m_import, &QPushButton::clicked, this, &CImportDialog::Start);
    connect(m_cancel, &QPushButton::clicked, this, &CImportDialog::reject);
    connect(&m_importing, &CImporting::Changed, this, &CImportDialog::ShowState);
    connect(&m_importing, &CImporting::FilesAdded, this, [this] { m_spoken->Say(m_importing.FileCount()); });
    connect(&m_importing, &CImporting::Ended, this, &CImportDialog::ShowEnd);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
        [this] { m_services.openHelp(QStringLiteral("import")); });
    m_choose->setFocus();
    FitToScreen(*this);
    NoticeHeldKeys(*this); // The key that starts the import shall not stop it.
    ShowState();
}

CImportDialog::~CImportDialog()
{
    // What ends now has nothing to show any more.
    disconnect(&m_importing, nullptr, this, nullptr);
    m_importing.Finish();
}

QPushButton *CImportDialog::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_services.texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    return button;
}

void CImportDialog::MakeList()
{
    m_list->setObjectName(QStringLiteral("files"));
    m_list->setAccessibleName(m_services.texts.Get(Text::ImportFileList));
    m_list->setModel(&m_importing.Files());
    m_list->setItemDelegateForColumn(CImportFilesModel::Status, new CFileStatusDelegate(m_list));
    ShowRows(*m_list);
    QHeaderView *const header = m_list->horizontalHeader();
    header->setSectionResizeMode(CImportFilesModel::Folder, QHeaderView::Stretch);
    const int character = fontMetrics().averageCharWidth();
    constexpr int UnitsPerCharacter = 4; // Widths of columns are given in such units.
    m_list->setColumnWidth(CImportFilesModel::Name, character * 19);
    m_list->setColumnWidth(CImportFilesModel::Status, character * 23);
    for (const int column : {CImportFilesModel::ImportedEntries, CImportFilesModel::IgnoredEntries}) {
        m_list->setColumnWidth(
            column, std::max(character * 45 / UnitsPerCharacter, header->sectionSizeHint(column)));
    }
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * 7);
    m_list->setMinimumWidth(character * 60);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CImportDialog::ShowState);
    auto *const removeKey = new QShortcut(Qt::Key_Delete, m_list);
    removeKey->setContext(Qt::WidgetShortcut);
    connect(removeKey, &QShortcut::activated, this, &CImportDialog::RemoveSelected);
}

QWidget *CImportDialog::MakeFilter()
{
    const CTexts &texts = m_services.texts;
    ImportSettings &values = m_importing.values;
    const auto addFields = [&](QGridLayout &rows, QWidget *page) {
        QComboBox *const match =
            MakeChoice(page, "languageMatch", texts.Get(Text::ImportLanguageMatches), values.languageMatch);
        QLabel *const label = MakeLabel(texts.Get(Text::ImportLanguageMatch), page);
        label->setBuddy(match);
        match->setAccessibleName(CaptionReadOut(label->text()));
        QCheckBox *const duplicates = MakeCheckBox(
            page, "ignoreDuplicates", texts.Get(Text::ImportIgnoreDuplicates), values.ignoreDuplicates);
        const int row = rows.rowCount();
        rows.addWidget(label, row, 0);
        rows.addWidget(match, row, 1, 1, 3, Qt::AlignLeft);
        rows.addWidget(duplicates, row + 1, 0, 1, 4);
    };
    return new CScrollingPage(
        new CFileFilterFields(texts, FileFilterValues::Of(values), this, addFields), this);
}

QWidget *CImportDialog::MakeProgress()
{
    auto *const part = new QWidget(this);
    auto *const rows = new QGridLayout(part);
    rows->setContentsMargins({});
    rows->setColumnStretch(1, 1);
    for (int i = 0; i < int(m_counters.size()); ++i) {
        const QString caption = m_services.texts.Get(Text::ImportedFiles + i);
        QLabel *const counter = MakeLabel({}, part);
        counter->setObjectName(QStringLiteral("counter%1").arg(i));
        rows->addWidget(MakeLabel(caption, part), i, 0);
        rows->addWidget(counter, i, 1);
        m_counters[size_t(i)] = counter;
    }
    m_progress = new QProgressBar(part);
    m_progress->setObjectName(QStringLiteral("progress"));
    m_progress->setAccessibleName(m_services.texts.Get(Text::ImportProgress));
    rows->addWidget(m_progress, rows->rowCount(), 0, 1, 2);
    return part;
}

void CImportDialog::Start()
{
    if (!m_importing.CanStart()) {
        return;
    }
    if (m_searchWindow != nullptr) {
        m_searchWindow->close(); // Nothing can be added any more.
    }
    setCursor(Qt::BusyCursor);
    m_cancel->setFocus();
    const int freed = m_filterPart->height() - m_progressPart->sizeHint().height();
    m_filterPart->hide();
    m_progressPart->show();
    m_progress->setRange(0, m_importing.Files().rowCount());
    m_importing.Start();
    // The list keeps its height.
    layout()->activate();
    resize(width(), height() - freed);
}

void CImportDialog::OpenSearch()
{
    if (m_searchWindow == nullptr) {
        m_searchWindow = new CFileSearchWindow(m_services, CFileSearchWindow::Purpose::AddToImport, this);
        connect(m_searchWindow, &CFileSearchWindow::FilesChosen, this, &CImportDialog::AddFiles);
    }
    m_searchWindow->Present();
}

void CImportDialog::RemoveSelected()
{
    if (m_importing.CurrentStage() != CImporting::Stage::Choosing) {
        return;
    }
    std::vector<int> rows;
    for (const QModelIndex &row : m_list->selectionModel()->selectedRows()) {
        rows.push_back(row.row());
    }
    if (rows.empty()) {
        return;
    }
    const int first = std::ranges::min(rows);
    m_importing.Remove(rows);
    const int left = m_importing.Files().rowCount();
    if (left > 0) {
        m_list->selectRow(std::min(first, left - 1));
    }
}

void CImportDialog::ShowState()
{
    using Stage = CImporting::Stage;
    const bool choosing = m_importing.CurrentStage() == Stage::Choosing;
    m_count->setText(m_importing.FileCount());
    const QModelIndexList selected = m_list->selectionModel()->selectedRows();
    const QString reason =
        selected.size() == 1 ? m_importing.Files().Reason(selected.first().row()) : QString();
    m_line->ShowText(reason.isEmpty() ? m_importing.StatusLine() : OneLine(reason));
    m_choose->setEnabled(choosing);
    m_search->setEnabled(choosing);
    m_remove->setEnabled(choosing && m_list->selectionModel()->hasSelection());
    m_import->setEnabled(m_importing.CanStart());
    const ImportTotals &totals = m_importing.Totals();
    const std::array counts = {totals.importedFiles, totals.ignoredFiles, totals.badFiles,
        totals.importedEntries, totals.ignoredEntries};
    for (size_t i = 0; i < m_counters.size(); ++i) {
        const QString count = FormatNumber(counts[i]);
        m_counters[i]->setText(count);
        m_counters[i]->setAccessibleName(m_services.texts.Get(Text::ImportedFiles + int(i)) + u' '
            + count); // What it counts is read out too.
    }
    m_progress->setValue(m_importing.FilesRead());
}

void CImportDialog::ShowEnd()
{
    m_list->clearSelection();
    m_cancel->setText(m_services.texts.Get(Text::Close));
    m_cancel->setDefault(true);
    unsetCursor();
    QApplication::beep();
    m_spoken->Say(m_importing.Summary());
}

void CImportDialog::reject()
{
    if (m_importing.IsCollecting()) {
        m_importing.StopCollecting();
    } else if (m_importing.CurrentStage() == CImporting::Stage::Importing) {
        m_importing.Cancel();
    } else {
        QDialog::reject();
    }
}

void CImportDialog::closeEvent(QCloseEvent *event)
{
    Finish();
    QDialog::closeEvent(event);
}

QSize CImportDialog::sizeHint() const
{
    return QDialog::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 120, fontMetrics().lineSpacing() * 34});
}

void CImportDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_importing.CurrentStage() == CImporting::Stage::Choosing
        && !LocalFilesOf(event->mimeData()->urls()).isEmpty()) {
        event->setDropAction(Qt::CopyAction); // The files stay where they are.
        event->accept();
    }
}

void CImportDialog::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_importing.Collect(LocalFilesOf(event->mimeData()->urls()));
}
