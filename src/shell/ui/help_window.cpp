// SPDX-License-Identifier: MIT
#include "shell/ui/help_window.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"
#include "shell/ui/help_text.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int AnchorRole = Qt::UserRole;

}

CHelpWindow::CHelpWindow(const CTexts &texts, QStringList dataFolders, IUserPrompt &prompt,
    std::function<void(const QString &file)> openFile)
    : QWidget(nullptr), m_texts(texts), m_dataFolders(std::move(dataFolders)), m_prompt(prompt),
      m_openFile(std::move(openFile)), m_text(new CHelpText(this))
{
    setObjectName(QStringLiteral("help"));
    setWindowTitle(texts.Get(Text::HelpTitle));
    m_text->setObjectName(QStringLiteral("helpText"));
    m_text->setAccessibleName(texts.Get(Text::HelpTextName));

    auto *const reading = new QWidget(this);
    auto *const readingLayout = new QVBoxLayout(reading);
    readingLayout->setContentsMargins({});
    readingLayout->addWidget(MakeSearch());
    readingLayout->addWidget(m_text, 1);
    auto *const halves = new QSplitter(this);
    halves->addWidget(MakeContents());
    halves->addWidget(reading);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(halves, 1);
    layout->addWidget(MakeButtons());

    const QList<QWidget *> order = {m_contents, m_search, m_previous, m_next, m_text, m_back};
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
    const int letter = fontMetrics().averageCharWidth();
    halves->setSizes({letter * 32, letter * 96});
    resize(QSize(letter * 132, fontMetrics().lineSpacing() * 40).boundedTo(screen()->availableSize() * 0.85));
}

QWidget *CHelpWindow::MakeContents()
{
    auto *const side = new QWidget(this);
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    m_contents = new QTreeWidget(side);
    m_contents->setObjectName(QStringLiteral("contents"));
    m_contents->setAccessibleName(CaptionReadOut(m_texts.Get(Text::HelpContents)));
    m_contents->setHeaderHidden(true);
    m_contents->setUniformRowHeights(true);
    QLabel *const caption = MakeLabel(m_texts.Get(Text::HelpContents), side);
    caption->setBuddy(m_contents);
    layout->addWidget(caption);
    layout->addWidget(m_contents, 1);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (item != nullptr) {
            m_text->GoTo(item->data(0, AnchorRole).toString());
        }
    });
    // A click also leads back from where the text was scrolled to.
    connect(m_contents, &QTreeWidget::itemClicked, this,
        [this](QTreeWidgetItem *item) { m_text->GoTo(item->data(0, AnchorRole).toString()); });
    return side;
}

QWidget *CHelpWindow::MakeSearch()
{
    auto *const bar = new QWidget(this);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    m_search = new QLineEdit(bar);
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setAccessibleName(CaptionReadOut(m_texts.Get(Text::HelpSearch)));
    m_search->setClearButtonEnabled(true);
    m_search->setMaxLength(200);
    m_search->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    QLabel *const caption = MakeLabel(m_texts.Get(Text::HelpSearch), bar);
    caption->setBuddy(m_search);
    m_hits = MakeLabel({}, bar);
    m_hits->setObjectName(QStringLiteral("hits"));
    m_hits->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
    m_previous = MakeButton(Text::HelpPrevious, "previous");
    m_next = MakeButton(Text::HelpNext, "next");
    layout->addWidget(caption);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_previous);
    layout->addWidget(m_next);
    layout->addWidget(m_hits);
    connect(m_search, &QLineEdit::textChanged, this, &CHelpWindow::FindTyped);
    connect(m_search, &QLineEdit::returnPressed, this,
        [this] { FindNext(!QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)); });
    connect(m_previous, &QPushButton::clicked, this, [this] { FindNext(false); });
    connect(m_next, &QPushButton::clicked, this, [this] { FindNext(true); });
    FindTyped();
    return bar;
}

QWidget *CHelpWindow::MakeButtons()
{
    auto *const bar = new QWidget(this);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins({});
    m_back = MakeButton(Text::HelpBack, "back");
    m_back->setEnabled(false);
    QPushButton *const browser = MakeButton(Text::HelpInBrowser, "inBrowser");
    layout->addWidget(m_back);
    layout->addStretch(1);
    layout->addWidget(browser);
    connect(m_back, &QPushButton::clicked, m_text, &QTextBrowser::backward);
    connect(m_text, &QTextBrowser::backwardAvailable, m_back, &QWidget::setEnabled);
    connect(m_text, &QTextBrowser::sourceChanged, this,
        [this](const QUrl &source) { MarkSection(source.fragment()); });
    connect(browser, &QPushButton::clicked, this, [this] { m_openFile(m_file); });
    return bar;
}

QPushButton *CHelpWindow::MakeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(false);
    return button;
}

void CHelpWindow::ShowSection(const QString &anchor)
{
    const bool isFirst = m_file.isEmpty();
    if (!Load()) {
        m_prompt.Tell(m_texts.Prompt(Text::CannotOpenHelp), PromptIcon::Warning);
        return;
    }
    if (!isVisible()) {
        show();
    }
    if (isMinimized()) {
        showNormal();
    }
    raise();
    activateWindow();
    m_text->setFocus();
    if (!anchor.isEmpty()) {
        m_text->GoTo(anchor);
    }
    if (isFirst) {
        m_text->clearHistory(); // Nothing was read before.
    }
}

bool CHelpWindow::Load()
{
    if (!m_file.isEmpty()) {
        return true;
    }
    const QString file = FindHelp(m_texts, m_dataFolders);
    const std::optional<HelpPage> page = file.isEmpty() ? std::nullopt : ReadHelp(file);
    if (!page) {
        return false;
    }
    m_file = file;
    FillContents(page->sections);
    m_text->ShowPage(file, *page);
    return true;
}

void CHelpWindow::FillContents(const QList<HelpSection> &sections)
{
    const QSignalBlocker quiet(m_contents);
    QTreeWidgetItem *chapter = nullptr;
    for (const HelpSection &section : sections) {
        const bool isPart = section.level > 2 && chapter != nullptr;
        auto *const item = isPart ? new QTreeWidgetItem(chapter) : new QTreeWidgetItem(m_contents);
        item->setText(0, section.title);
        item->setData(0, AnchorRole, section.anchor);
        if (!isPart) {
            chapter = item;
        }
    }
}

void CHelpWindow::MarkSection(const QString &anchor)
{
    for (QTreeWidgetItemIterator item(m_contents); *item != nullptr; ++item) {
        if ((*item)->data(0, AnchorRole).toString() == anchor) {
            const QSignalBlocker quiet(m_contents);
            m_contents->setCurrentItem(*item);
            m_contents->scrollToItem(*item);
            return;
        }
    }
}

void CHelpWindow::FindTyped()
{
    const QString text = m_search->text();
    m_previous->setEnabled(!text.isEmpty());
    m_next->setEnabled(!text.isEmpty());
    const int hits = text.isEmpty() ? 0 : m_text->MarkAll(text);
    if (text.isEmpty()) {
        m_text->MarkAll({});
        m_hits->clear();
        return;
    }
    m_text->Find(text, true, false);
    m_hits->setText(hits == 0 ? m_texts.Get(Text::HelpNoHits)
            : hits == 1       ? m_texts.Get(Text::HelpOneHit)
                              : m_texts.Fill(Text::HelpHits, {QString::number(hits)}));
}

void CHelpWindow::FindNext(bool forward)
{
    m_text->Find(m_search->text(), forward, true);
}

void CHelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->matches(QKeySequence::Find)) {
        m_search->setFocus();
        m_search->selectAll();
    } else if (event->matches(QKeySequence::FindNext)) {
        FindNext(true);
    } else {
        QWidget::keyPressEvent(event);
    }
}
