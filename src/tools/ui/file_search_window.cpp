// SPDX-License-Identifier: MIT
#include "tools/ui/file_search_window.h"

#include "fileformats/formats.h"
#include "platform/file_chooser.h"
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

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>

#include <algorithm>
#include <array>
#include <utility>

CFileSearchWindow::CFileSearchWindow(const FileToolServices &services, Purpose purpose, QWidget *owner)
    : QDialog(owner), m_services(services), m_purpose(purpose),
      m_searching(services.fileSearch, services.texts, services.prompt),
      m_fields(new CScrollingPage(MakeFields(), this)), m_list(new QTableView(this)), m_start(nullptr),
      m_count(MakeLabel({}, this)), m_line(new CElidedLabel(this)), m_spoken(new CSpokenText(this))
{
    const CTexts &texts = services.texts;
    setObjectName(QStringLiteral("fileSearchWindow"));
    setWindowTitle(texts.Get(Text::SearchTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_start = MakeButton(Text::SearchStart, "search");
    m_start->setDefault(true);
    if (purpose == Purpose::OpenOrImport) {
        m_open = MakeButton(Text::SearchOpen, "open");
        m_choose = MakeButton(Text::SearchImport, "import");
    } else {
        m_choose = MakeButton(Text::SearchAdd, "add");
    }
    QPushButton *const close = MakeButton(Text::Close, "close");
    MakeList();
    QLayout *const orderLine = MakeOrderLine();
    m_count->setObjectName(QStringLiteral("fileCount"));
    m_line->setObjectName(QStringLiteral("statusLine"));

    auto *const buttons = new QVBoxLayout;
    for (QPushButton *const button : {m_start, m_open, m_choose, close}) {
        if (button != nullptr) {
            buttons->addWidget(button);
        }
    }
    buttons->addStretch(1);
    auto *const top = new QHBoxLayout;
    top->addWidget(m_fields, 1);
    top->addLayout(buttons);
    auto *const status = new QHBoxLayout;
    status->addWidget(m_count);
    status->addWidget(m_line, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(orderLine);
    layout->addWidget(m_list, 1);
    layout->addLayout(status);

    connect(m_start, &QPushButton::clicked, this, &CFileSearchWindow::StartOrStop);
    if (m_open != nullptr) {
        connect(m_open, &QPushButton::clicked, this, &CFileSearchWindow::OpenCurrent);
    }
    connect(m_choose, &QPushButton::clicked, this, &CFileSearchWindow::ChooseFiles);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(&m_searching, &CFileSearch::Changed, this, &CFileSearchWindow::ShowState);
    connect(&m_searching, &CFileSearch::Ended, this, [this] { m_spoken->Say(m_searching.CountLine()); });
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
        [this] { m_services.openHelp(QStringLiteral("filesearch")); });
    m_folder->setFocus();
    FitToScreen(*this);
    NoticeHeldKeys(*this); // The key that starts the search shall not stop it.
    ShowState();
}

CFileSearchWindow::~CFileSearchWindow()
{
    // What ends now has nothing to show any more.
    disconnect(&m_searching, nullptr, this, nullptr);
}

void CFileSearchWindow::Present()
{
    show();
    raise();
    activateWindow();
}

void CFileSearchWindow::ShowSettings()
{
    m_searching.TakeSettings();
    auto *const fields = new CScrollingPage(MakeFields(), this);
    const bool hadFocus = m_fields->isAncestorOf(focusWidget());
    delete layout()->replaceWidget(m_fields, fields);
    delete std::exchange(m_fields, fields);
    fields->show();
    if (hadFocus) {
        m_folder->setFocus();
    }
}

QPushButton *CFileSearchWindow::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_services.texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

QWidget *CFileSearchWindow::MakeFields()
{
    const CTexts &texts = m_services.texts;
    FileSearchSettings &values = m_searching.values;
    auto *const page = new QWidget(this);
    auto *const rows = new QGridLayout(page);
    rows->setContentsMargins({});
    rows->setColumnStretch(1, 1);
    QLabel *const folderLabel = MakeLabel(texts.Get(Text::SearchFolder), page);
    const FileField folder = MakeFileField(page, "folder", CaptionReadOut(folderLabel->text()),
        texts.Get(Text::SearchBrowse), values.path, [this](const QString &current) {
            const QString chosen = m_services.chooser.ChooseFolder(
                {.title = m_services.texts.Get(Text::SearchChooseFolder), .filters = {}, .start = current});
            return chosen.isEmpty() ? current : chosen;
        });
    m_folder = folder.name;
    m_folder->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    folder.browse->setAutoDefault(false);
    folderLabel->setBuddy(m_folder);
    QCheckBox *const subfolders = MakeCheckBox(
        page, "searchSubDirectories", texts.Get(Text::SearchSubfolders), values.searchSubDirectories);
    QLabel *const typeLabel = MakeLabel(texts.Get(Text::SearchFileType), page);
    auto *const type = new QComboBox(page);
    type->setObjectName(QStringLiteral("fileType"));
    type->setAccessibleName(CaptionReadOut(typeLabel->text()));
    type->setEditable(true);
    type->setInsertPolicy(QComboBox::NoInsert);
    for (const Format *const format : FormatsToOpen()) {
        if (!format->suffixes.empty()) {
            type->addItem(PatternsOf(*format).join(u';'));
        }
    }
    type->addItem(QStringLiteral("*.*"));
    type->setCurrentText(values.filetype);
    typeLabel->setBuddy(type);
    connect(
        type, &QComboBox::currentTextChanged, this, [&values](const QString &text) { values.filetype = text; });
    rows->addWidget(folderLabel, 0, 0);
    rows->addWidget(folder.name, 0, 1);
    rows->addWidget(folder.browse, 0, 2);
    rows->addWidget(subfolders, 1, 1, 1, 2);
    rows->addWidget(typeLabel, 2, 0);
    rows->addWidget(type, 2, 1, Qt::AlignLeft);
    rows->addWidget(new CFileFilterFields(texts, FileFilterValues::Of(values), page), 3, 0, 1, 3);
    return page;
}

void CFileSearchWindow::MakeList()
{
    m_list->setObjectName(QStringLiteral("foundFiles"));
    m_list->setAccessibleName(m_services.texts.Get(Text::SearchFileList));
    m_list->setModel(&m_searching.Found());
    ShowRows(*m_list);
    QHeaderView *const header = m_list->horizontalHeader();
    constexpr std::array Widths = {22, 20, 14, 24, 8, 34, 12}; // In characters.
    const int character = fontMetrics().averageCharWidth();
    for (int column = 0; column < int(Widths.size()); ++column) {
        m_list->setColumnWidth(
            column, std::max(character * Widths[size_t(column)], header->sectionSizeHint(column)));
    }
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    m_list->installEventFilter(this);
    connect(
        m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CFileSearchWindow::ShowState);
    connect(m_list, &QTableView::doubleClicked, this, &CFileSearchWindow::OpenCurrent);
}

QLayout *CFileSearchWindow::MakeOrderLine()
{
    // What a click on a heading does, for the keyboard.
    auto *const order = new QComboBox(this);
    order->setObjectName(QStringLiteral("order"));
    order->addItem(m_services.texts.Get(Text::SearchOrderFound));
    order->addItems(m_services.texts.Get(Text::SearchColumns).split(u'\n'));
    QHeaderView *const header = m_list->horizontalHeader();
    m_list->sortByColumn(-1, Qt::AscendingOrder);
    m_list->setSortingEnabled(true);
    header->setSortIndicatorClearable(true); // Back to the order in which they were found.
    connect(order, &QComboBox::activated, this,
        [this](int chosen) { m_list->sortByColumn(chosen - 1, Qt::AscendingOrder); });
    connect(header, &QHeaderView::sortIndicatorChanged, order,
        [order](int section) { order->setCurrentIndex(section + 1); });
    QLabel *const label = MakeLabel(m_services.texts.Get(Text::SearchOrder), this);
    label->setBuddy(order);
    order->setAccessibleName(CaptionReadOut(label->text()));
    setTabOrder(order, m_list);
    auto *const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(order);
    line->addStretch(1);
    return line;
}

void CFileSearchWindow::StartOrStop()
{
    if (m_searching.IsSearching()) {
        m_searching.Stop();
    } else if (!m_searching.Start()) {
        m_folder->setFocus();
        m_folder->selectAll();
    }
}

QStringList CFileSearchWindow::ChosenFiles()
{
    std::vector<int> rows;
    for (const QModelIndex &row : m_list->selectionModel()->selectedRows()) {
        rows.push_back(row.row());
    }
    std::ranges::sort(rows);
    const CFoundFilesOrder &found = m_searching.Found();
    QStringList files;
    for (const int row : rows) {
        files.append(found.FileOf(row).path);
    }
    for (int row = 0; rows.empty() && row < found.rowCount(); ++row) {
        files.append(found.FileOf(row).path);
    }
    return files;
}

void CFileSearchWindow::OpenCurrent()
{
    const QModelIndexList selected = m_list->selectionModel()->selectedRows();
    if (m_open == nullptr) {
        ChooseFiles();
    } else if (selected.size() == 1) {
        Q_EMIT FileWanted(m_searching.Found().FileOf(selected.first().row()).path);
    }
}

void CFileSearchWindow::ChooseFiles()
{
    const QStringList files = ChosenFiles();
    if (files.isEmpty()) {
        return;
    }
    Q_EMIT FilesChosen(files);
    if (m_purpose == Purpose::AddToImport) {
        const QString added = m_services.texts.Fill(Text::SearchAdded, {FormatNumber(files.size())});
        m_line->ShowText(added);
        m_spoken->Say(added);
    }
}

void CFileSearchWindow::ShowState()
{
    const bool searching = m_searching.IsSearching();
    m_start->setText(m_services.texts.Get(searching ? Text::SearchStop : Text::SearchStart));
    m_start->setDefault(!searching); // Enter starts a search, and stops none by accident.
    if (m_open != nullptr) {
        m_open->setEnabled(m_list->selectionModel()->selectedRows().size() == 1);
    }
    m_choose->setEnabled(m_searching.Found().rowCount() > 0);
    m_count->setText(m_searching.CountLine());
    m_line->ShowText(m_searching.FolderLine());
}

bool CFileSearchWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            OpenCurrent(); // And doesn't press the default button.
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

QSize CFileSearchWindow::sizeHint() const
{
    return QDialog::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 42});
}
