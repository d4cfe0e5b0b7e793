// SPDX-License-Identifier: MIT
#include "editor/ui/find_window.h"

#include "document/win32_doc.h"
#include "editor/finding.h"
#include "editor/text_numbers.h"
#include "editor/ui/find_result_delegate.h"
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/row_table.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/spoken_text.h"
#include "platform/ui/window_placing.h"
#include "resources/texts.h"
#include "settings/shell_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <utility>

namespace {

/// Right of a window, at its upper edge, and not beyond the upper, left and right edges of the screen.
QPoint PlaceBeside(const QRect &window, int width, const QRect &workArea)
{
    const int left = std::max(window.right() + 1, 0);
    const int rightmost = workArea.right() + 1 - width;
    return {std::min(left, rightmost), std::max(window.top(), 0)};
}

/// Texts with names of languages in the places of "%1" and "%2".
QString WithNames(const QString &format, const CWordList &list, QString (*shown)(const QString &name))
{
    return FillPlaceholders(format,
        {{QStringLiteral("%1"), shown(list.GetLanguage(0))},
            {QStringLiteral("%2"), shown(list.GetLanguage(1))}},
        FilledFor::Screen);
}

QString ShownInList(const QString &name)
{
    constexpr qsizetype Longest = 40; // The window grows with it.
    return ShownShort(name.simplified(), Longest);
}

}

CFindWindow::CFindWindow(const FindWindowServices &services, QWidget *owner)
    : QDialog(owner), m_services(services),
      m_search(services.document, services.finding, services.texts, services.clock), m_text(new QLineEdit(this))
{
    setObjectName(QStringLiteral("findWindow"));
    setWindowTitle(services.texts.Get(Text::FindTitle));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);

    m_text->setObjectName(QStringLiteral("findText"));
    QLabel *const label = MakeLabel(services.texts.Get(Text::FindText), this);
    label->setBuddy(m_text);
    m_matchCase = MakeCheck(Text::FindMatchCase, "matchCase");
    m_wholeWord = MakeCheck(Text::FindWholeWord, "wholeWord");
    m_wildcards = MakeCheck(Text::FindWildcards, "wildcard");
    m_dictionary = MakeCheck(Text::FindDictionary, "dictionary");
    m_advanced = MakeCheck(Text::FindAdvanced, "advancedSearch");
    QPushButton *const next = MakeButton(Text::FindNextButton, "findNext");
    QPushButton *const all = MakeButton(Text::FindAllButton, "findAll");
    QPushButton *const cancel = MakeButton(Text::Cancel, "cancel");
    next->setDefault(true);
    m_advancedPart = MakeAdvanced();
    m_resultPart = MakeResults();

    auto *const grid = new QGridLayout;
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_text, 0, 1, 1, 2);
    grid->addWidget(m_matchCase, 1, 1);
    grid->addWidget(m_wholeWord, 1, 2);
    grid->addWidget(m_wildcards, 2, 1);
    grid->addWidget(m_dictionary, 2, 2);
    grid->addWidget(m_advanced, 3, 1);
    int row = 0;
    for (QPushButton *const button : {next, all, cancel}) {
        grid->addWidget(button, row++, 3);
    }
    grid->setColumnStretch(2, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(m_advancedPart);
    layout->addWidget(m_resultPart, 1);
    const QList<QWidget *> order = {m_text, m_matchCase, m_wholeWord, m_wildcards, m_dictionary, m_advanced,
        m_direction, m_column, m_flags[0], m_flags[1], m_results, next, all, cancel};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }

    FillChoices();
    ShowSettings();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &CFindWindow::GoOn);
    connect(m_text, &QLineEdit::textChanged, this, &CFindWindow::Changed);
    for (const QCheckBox *const box : {m_matchCase, m_wholeWord, m_wildcards, m_advanced}) {
        connect(box, &QCheckBox::toggled, this, &CFindWindow::Changed);
    }
    for (const QComboBox *const box : {m_column, m_flags[0], m_flags[1]}) {
        connect(box, &QComboBox::activated, this, &CFindWindow::Changed);
    }
    connect(m_advanced, &QCheckBox::toggled, this, &CFindWindow::ShowParts);
    connect(m_dictionary, &QCheckBox::toggled, this, [this] {
        ShowParts();
        SearchNow();
    });
    const auto findNext = [this] {
        SaveSettings();
        Q_EMIT NextWanted();
    };
    connect(next, &QPushButton::clicked, this, findNext);
    connect(new QShortcut(QKeySequence(QKeySequence::FindNext), this), &QShortcut::activated, this, findNext);
    connect(all, &QPushButton::clicked, this, [this] {
        SaveSettings();
        Q_EMIT AllWanted();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(&services.document, &CWin32Doc::Changed, this, &CFindWindow::ListChanged);
    m_search.ListChanged();
    ShowCount();
}

QCheckBox *CFindWindow::MakeCheck(int text, const char *name)
{
    auto *const box = new QCheckBox(m_services.texts.Get(text), this);
    box->setObjectName(QLatin1StringView(name));
    return box;
}

QPushButton *CFindWindow::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_services.texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

QComboBox *CFindWindow::MakeChoice(const char *name)
{
    auto *const box = new QComboBox(this);
    box->setObjectName(QLatin1StringView(name));
    return box;
}

QWidget *CFindWindow::MakeAdvanced()
{
    m_direction = MakeChoice("direction");
    m_column = MakeChoice("column");
    auto *const part = new QWidget;
    auto *const layout = new QFormLayout(part);
    layout->setContentsMargins({});
    AddLabelledRow(*layout, m_services.texts.Get(Text::FindDirection), m_direction);
    AddLabelledRow(*layout, m_services.texts.Get(Text::FindColumn), m_column);
    auto *const group = new QGroupBox(m_services.texts.Get(Text::FindFlags), part);
    auto *const flags = new QFormLayout(group);
    for (size_t i = 0; i < m_flags.size(); ++i) {
        m_flags[i] = MakeChoice(i == 0 ? "flag1" : "flag2");
        m_flagLabels[i] = AddLabelledRow(*flags, QString(), m_flags[i]);
    }
    layout->addRow(group);
    auto *const page = new CScrollingPage(part, this); // On a low screen the results need room too.
    page->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    return page;
}

QWidget *CFindWindow::MakeResults()
{
    auto *const part = new QWidget(this);
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    m_results = new QTableView(part);
    m_results->setObjectName(QStringLiteral("findResults"));
    m_results->setAccessibleName(m_services.texts.Get(Text::FindResultList));
    m_results->setModel(&m_search.Results());
    m_results->setItemDelegate(new CFindResultDelegate(m_results));
    ShowRows(*m_results);
    m_results->setVerticalScrollMode(QTableView::ScrollPerPixel);
    m_results->setMinimumHeight(fontMetrics().height() * 5);
    m_results->installEventFilter(this);
    m_count = MakeLabel({}, part);
    m_count->setObjectName(QStringLiteral("findCount"));
    m_count->setBuddy(m_results); // Else it is read out with the name of the window.
    layout->addWidget(m_results);
    layout->addWidget(m_count);
    connect(
        m_results->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CFindWindow::ChooseEntries);
    connect(m_results, &QTableView::doubleClicked, this, &CFindWindow::GoToResult);
    return part;
}

void CFindWindow::FillChoices()
{
    const CTexts &texts = m_services.texts;
    const CWordList &list = m_services.document.List();
    const auto fill = [](QComboBox &box, const QStringList &items) {
        const int current = box.currentIndex();
        box.clear();
        box.addItems(items);
        box.setCurrentIndex(std::max(current, 0));
    };
    fill(*m_direction, texts.Get(Text::FindDirections).split(u'\n'));
    QStringList columns = texts.Get(Text::FindColumns).split(u'\n');
    for (QString &column : columns) {
        column = WithNames(column, list, ShownInList);
    }
    fill(*m_column, columns);
    for (size_t i = 0; i < m_flags.size(); ++i) {
        fill(*m_flags[i], texts.Get(Text::FindFlagFilters).split(u'\n'));
        m_flags[i]->setItemIcon(1, QIcon(QStringLiteral(":/pictures/flag-on.svg")));
        m_flags[i]->setItemIcon(2, QIcon(QStringLiteral(":/pictures/flag-off.svg")));
        m_flagLabels[i]->setText(WithNames(texts.Get(Text::FindFlag1 + int(i)), list,
            [](const QString &name) { return ShownInCaption(ShownInList(name)); }));
        m_flags[i]->setAccessibleName(CaptionReadOut(m_flagLabels[i]->text()));
    }
}

void CFindWindow::ShowSettings()
{
    const FindSettings settings = m_services.finding.Settings(); // What follows may save some of them.
    m_text->setText(m_services.finding.Text());
    m_matchCase->setChecked(settings.matchCase);
    m_wholeWord->setChecked(settings.wholeWord);
    m_wildcards->setChecked(settings.wildcard);
    m_advanced->setChecked(settings.advancedSearch);
    m_direction->setCurrentIndex(settings.searchDown ? 1 : 0);
    m_column->setCurrentIndex(settings.language + 1);
    m_flags[0]->setCurrentIndex(settings.flag1);
    m_flags[1]->setCurrentIndex(settings.flag2);
    m_dictionary->setChecked(settings.dictionary); // Last, since it searches.
}

void CFindWindow::SaveSettings()
{
    FindSettings &settings = m_services.finding.Settings();
    m_services.finding.SetText(m_text->text());
    settings.matchCase = m_matchCase->isChecked();
    settings.wholeWord = m_wholeWord->isChecked();
    settings.wildcard = m_wildcards->isChecked();
    settings.dictionary = m_dictionary->isChecked();
    settings.advancedSearch = m_advanced->isChecked();
    settings.searchDown = m_direction->currentIndex() == 1;
    settings.language = m_column->currentIndex() - 1;
    settings.flag1 = m_flags[0]->currentIndex();
    settings.flag2 = m_flags[1]->currentIndex();
}

void CFindWindow::ShowParts()
{
    m_advancedPart->setVisible(m_advanced->isChecked());
    m_resultPart->setVisible(m_dictionary->isChecked());
    layout()->activate();
    const QSize wanted = sizeHint();
    const int height = m_dictionary->isChecked() ? std::max(wanted.height(), this->height()) : wanted.height();
    const int most = screen()->availableGeometry().bottom() + 1 - geometry().top();
    resize(std::max(wanted.width(), width()), isVisible() ? std::min(height, most) : height);
}

void CFindWindow::Open(const QWidget &beside)
{
    if (!isVisible()) {
        ShowParts();
    }
    if (!isVisible() && CanPlaceWindows()) {
        const QRect workArea = beside.screen()->availableGeometry();
        resize(size().boundedTo(workArea.size()));
        move(PlaceBeside(beside.frameGeometry(), width(), workArea));
    }
    show();
    raise();
    activateWindow();
    m_text->setFocus();
    m_text->selectAll();
}

bool CFindWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_results && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            GoToResult(); // And doesn't press the default button.
            return true;
        }
    }
    if (watched == m_results && event->type() == QEvent::Resize) {
        constexpr std::array Shares = {32, 32, 30}; // Of the width, in percent.
        for (size_t column = 0; column < Shares.size(); ++column) {
            m_results->setColumnWidth(int(column), m_results->width() * Shares[column] / 100);
        }
    }
    return QDialog::eventFilter(watched, event);
}

void CFindWindow::Changed()
{
    if (m_dictionary->isChecked()) {
        m_search.Typed();
        GoOn();
    }
}

void CFindWindow::SearchNow()
{
    SaveSettings();
    m_search.SearchNow();
    m_saysCount = true;
    GoOn();
}

void CFindWindow::ListChanged(const ListChange &change)
{
    if (change.PropertiesChanged()) {
        FillChoices();
    }
    m_search.ListChanged();
    GoOn();
}

void CFindWindow::GoOn()
{
    if (m_search.IsDue()) {
        SaveSettings();
        m_search.SearchNow();
        m_saysCount = true;
    } else {
        m_search.Work();
    }
    ShowCount();
    if (const auto wait = m_search.Wait()) {
        m_timer.start(*wait);
    } else if (std::exchange(m_saysCount, false)) {
        Say(m_count->text());
    }
}

void CFindWindow::Say(const QString &found)
{
    if (!isActiveWindow() || found.isEmpty()) {
        return;
    }
    if (m_spoken == nullptr) {
        m_spoken = new CSpokenText(this);
    }
    m_spoken->Say(found);
}

void CFindWindow::ShowCount()
{
    CFindResults &results = m_search.Results();
    const auto number = [](int n) { return QString::number(n); };
    m_count->setText(results.EntryCount() == 0
            ? QString()
            : QString(m_services.texts.Fill(Text::EntriesFound, {number(int(results.Entries().size()))}) + u' '
                + m_services.texts.Fill(Text::FindListSize, {number(results.EntryCount())})));
}

void CFindWindow::ChooseEntries()
{
    std::vector<int> entries;
    const std::vector<int> &found = m_search.Results().Entries();
    for (const QItemSelectionRange &range : m_results->selectionModel()->selection()) {
        entries.insert(entries.end(), found.begin() + range.top(), found.begin() + range.bottom() + 1);
    }
    if (!entries.empty()) {
        std::ranges::sort(entries);
        Q_EMIT EntriesChosen(entries);
    }
}

void CFindWindow::GoToResult()
{
    if (m_results->currentIndex().isValid()) {
        Q_EMIT MatchWanted(m_search.Results().FirstMatchIn(m_results->currentIndex().row()));
    }
}
