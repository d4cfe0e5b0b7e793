// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_result_dialog.h"

#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/row_table.h"
#include "platform/ui/wait_cursor.h"
#include "quiz/quiz_session.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/accept_answer_bar.h"
#include "quiz/ui/difference_delegate.h"
#include "quiz/ui/flag_settings_dialog.h"
#include "quiz/ui/share_delegate.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

CQuizResultDialog::CQuizResultDialog(
    std::shared_ptr<CQuizSession> session, const QuizWindowServices &services, ResultMode mode, QWidget *parent)
    : QDialog(parent), m_session(std::move(session)), m_services(services),
      m_result(*m_session, {services.texts, services.prompt, services.chooser, services.resultSettings}, mode),
      m_order(m_result.model(), *m_session), m_wrongAnswers(*m_session, services.texts),
      m_list(new QTableView(this)), m_summary(MakeLabel({}, this)), m_share(new QProgressBar(this))
{
    const CTexts &texts = services.texts;
    setObjectName(QStringLiteral("quizResult"));
    setWindowTitle(texts.Get(Text::ResultTitle));
    setWindowModality(Qt::WindowModal);
    if (services.font) {
        setFont(*services.font);
    }
    const QSize wanted(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 34);
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
    makeList();
    QLayout *const orderLine = makeOrderLine();
    m_summary->setObjectName(QStringLiteral("summary"));
    m_share->setObjectName(QStringLiteral("rightShare"));
    m_share->setAccessibleName(texts.Get(Text::ResultRightShare));
    m_share->setRange(0, 1000);
    m_share->setTextVisible(false);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(orderLine);
    layout->addWidget(m_list, 3);
    const bool mayTakeBack = m_session->acceptedAnswer().has_value();
    if (m_result.showsRightAnswers() && (m_result.hasMistakes() || mayTakeBack)) {
        layout->addWidget(makeWrongAnswers(), 1);
    }
    layout->addWidget(m_summary);
    layout->addWidget(m_share);
    if (const QString line = m_result.unanswerableLine(); !line.isEmpty()) {
        QLabel *const unanswerable = MakeWrappedLabel(line, this);
        unanswerable->setObjectName(QStringLiteral("unanswerable"));
        layout->addWidget(unanswerable);
    }
    if (m_result.changesFlags()) {
        m_selectMistakes = new QCheckBox(texts.Get(Text::SelectMistakes), this);
        m_selectMistakes->setObjectName(QStringLiteral("selectMistakes"));
        connect(m_selectMistakes, &QCheckBox::toggled, this,
            [this](bool select) { m_session->setSelectMistakes(select); });
        layout->addWidget(m_selectMistakes);
        layout->addLayout(makeFlagLine());
    }
    layout->addLayout(makeButtons());
    updateTotals();
    selectFirstMistake();
    if (m_accept != nullptr) {
        m_offersTakeBack = mayTakeBack;
        updateAcceptOffer();
    }
    // A layout leaves out that labels need more lines where there is little room.
    const int narrowest = layout->totalMinimumSize().width();
    setMinimumSize(narrowest, layout->minimumHeightForWidth(narrowest));
    m_list->setFocus();
    NoticeHeldKeys(*this);
    openHelpOnF1(*this, m_services);
}

void CQuizResultDialog::makeList()
{
    m_list->setObjectName(QStringLiteral("results"));
    m_list->setAccessibleName(m_result.texts().Get(Text::ResultEntries));
    m_list->setModel(&m_order);
    m_list->sortByColumn(-1, Qt::AscendingOrder);
    m_list->setSortingEnabled(true);
    m_list->horizontalHeader()->setSortIndicatorClearable(true); // Back to the session's order.
    ShowRows(*m_list);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setAlternatingRowColors(true);
    m_list->horizontalHeader()->setTextElideMode(Qt::ElideRight);
    m_list->horizontalHeader()->setStretchLastSection(true);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    const int columns = m_result.model().columnCount();
    const int character = fontMetrics().averageCharWidth();
    const int shareWidth = character * 18;
    const int margins = character * 10; // Around the list, and of its scroll bar.
    const int textWidth = std::min(character * 26, (width() - margins - shareWidth) / (columns - 1));
    for (int column = 0; column < columns; ++column) {
        const bool share = m_result.model().content(column) == CQuizResultModel::Share;
        m_list->setColumnWidth(column, share ? shareWidth : textWidth);
        if (share) {
            m_list->setItemDelegateForColumn(column, new CShareDelegate(this));
        }
    }
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &current) {
            showWord(current.isValid() ? m_order.positionOf(current.row()) : -1);
        });
}

QLayout *CQuizResultDialog::makeOrderLine()
{
    const CTexts &texts = m_result.texts();
    auto *only = new QCheckBox(texts.Get(Text::OnlyMistakes), this);
    only->setObjectName(QStringLiteral("onlyMistakes"));
    connect(only, &QCheckBox::toggled, this, &CQuizResultDialog::filter);
    // What a click on a heading does, for the keyboard.
    auto *orders = new QComboBox(this);
    orders->setObjectName(QStringLiteral("order"));
    orders->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    orders->setMinimumContentsLength(20);
    orders->addItem(texts.Get(Text::OrderOfQuiz));
    for (int column = 0; column < m_order.columnCount(); ++column) {
        orders->addItem(ShownShort(m_order.headerData(column, Qt::Horizontal).toString(), 60));
    }
    QHeaderView *const header = m_list->horizontalHeader();
    connect(orders, &QComboBox::activated, this,
        [this](int order) { m_list->sortByColumn(order - 1, Qt::AscendingOrder); });
    connect(header, &QHeaderView::sortIndicatorChanged, orders,
        [orders](int section) { orders->setCurrentIndex(section + 1); });
    QLabel *const label = MakeLabel(texts.Get(Text::ResultOrder), this);
    label->setBuddy(orders);
    orders->setAccessibleName(CaptionReadOut(label->text()));

    auto *line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(orders);
    line->addStretch(1);
    line->addWidget(only);
    return line;
}

void CQuizResultDialog::filter(bool onlyMistakes)
{
    const int position = m_wrongAnswers.position();
    m_order.setOnlyMistakes(onlyMistakes);
    if (position >= 0 && m_order.rowOf(position) >= 0) {
        selectWord(position);
    } else {
        selectFirstMistake();
    }
}

void CQuizResultDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_list->scrollTo(m_list->currentIndex()); // There was no room yet when it was chosen.
}

QWidget *CQuizResultDialog::makeWrongAnswers()
{
    const CTexts &texts = m_result.texts();
    auto *pane = new QWidget(this);
    QLabel *const label = MakeLabel(texts.Get(Text::WhatWasWrong), pane);
    m_answers = new QListView(pane);
    m_answers->setObjectName(QStringLiteral("wrongAnswers"));
    m_answers->setAccessibleName(texts.Get(Text::WhatWasWrong).remove(u'&'));
    m_answers->setModel(&m_wrongAnswers);
    m_answers->setItemDelegate(new CDifferenceDelegate(this));
    m_answers->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_answers->setMinimumHeight(fontMetrics().lineSpacing() * 4);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.25); // Single letters and their marks are to be seen.
    m_answers->setFont(large);
    label->setBuddy(m_answers);
    m_accept = new CAcceptAnswerBar(texts, this);
    connect(m_accept, &CAcceptAnswerBar::pressed, this, &CQuizResultDialog::takeAcceptOffer);
    connect(m_answers->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &CQuizResultDialog::answerSelected);

    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_answers, 1);
    layout->addWidget(m_accept);
    return pane;
}

QLayout *CQuizResultDialog::makeFlagLine()
{
    const CTexts &texts = m_result.texts();
    m_flagLine = MakeWrappedLabel({}, this);
    m_flagLine->setObjectName(QStringLiteral("flagLine"));
    QLabel *const hint = MakeWrappedLabel(texts.Get(Text::ResultFlagsHint), this);
    hint->setObjectName(QStringLiteral("flagsHint"));
    auto *settings = makeButton(Text::ResultFlagSettings, "flagSettingsButton");
    connect(settings, &QPushButton::clicked, this, &CQuizResultDialog::openFlagSettings);
    auto *grid = new QGridLayout;
    grid->addWidget(m_flagLine, 0, 0);
    grid->addWidget(hint, 1, 0);
    grid->addWidget(settings, 0, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    return grid;
}

QPushButton *CQuizResultDialog::makeButton(int text, const char *name)
{
    auto *button = new QPushButton(m_result.texts().Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    return button;
}

QLayout *CQuizResultDialog::makeButtons()
{
    auto *save = makeButton(Text::SaveResult, "saveButton");
    auto *copy = makeButton(Text::CopyResult, "copyButton");
    m_saveMistakes = makeButton(Text::SaveMistakes, "saveMistakesButton");
    connect(save, &QPushButton::clicked, this, [this] { m_result.saveTable(); });
    connect(copy, &QPushButton::clicked, this, &CQuizResultDialog::copyTable);
    connect(m_saveMistakes, &QPushButton::clicked, this, [this] { m_result.saveMistakes(); });

    QDialogButtonBox::StandardButtons standard = QDialogButtonBox::Ok;
    standard.setFlag(QDialogButtonBox::Cancel, m_result.changesFlags());
    auto *end = new QDialogButtonBox(standard, this);
    end->setObjectName(QStringLiteral("buttons"));
    connect(end, &QDialogButtonBox::accepted, this, &CQuizResultDialog::accept);
    connect(end, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addWidget(save);
    row->addWidget(copy);
    row->addWidget(m_saveMistakes);
    row->addStretch(1);
    if (m_result.changesFlags()) {
        m_askAgain = makeButton(Text::AskMistakesAgain, "askAgainButton");
        m_askAgain->setToolTip(m_result.texts().Get(Text::AskMistakesAgainHint));
        m_askAgain->setAccessibleDescription(m_askAgain->toolTip());
        m_askAgain->setAutoDefault(false);
        connect(m_askAgain, &QPushButton::clicked, this, &CQuizResultDialog::askAgain);
        row->addWidget(m_askAgain);
    }
    row->addWidget(end);
    return row;
}

void CQuizResultDialog::selectFirstMistake()
{
    for (int position = 0; position < m_session->wordCount(); ++position) {
        if (m_session->wasWrong(position)) {
            selectWord(position);
            return;
        }
    }
}

void CQuizResultDialog::selectWord(int position)
{
    m_list->selectRow(m_order.rowOf(position));
    m_list->scrollTo(m_list->currentIndex());
}

void CQuizResultDialog::askAgain()
{
    m_asksAgain = true;
    accept();
}

void CQuizResultDialog::showWord(int position)
{
    m_wrongAnswers.setPosition(position);
    if (m_answers != nullptr) {
        m_answers->setCurrentIndex(m_wrongAnswers.index(0));
        answerSelected();
    }
}

void CQuizResultDialog::answerSelected()
{
    m_offersTakeBack = false;
    updateAcceptOffer();
}

void CQuizResultDialog::updateAcceptOffer()
{
    m_accept->showOffer(m_offersTakeBack ? takeBackOffer(*m_session)
                                         : m_wrongAnswers.acceptOffer(m_answers->currentIndex().row()));
}

void CQuizResultDialog::updateTotals()
{
    m_summary->setText(m_result.summary());
    m_share->setValue(m_result.rightShare());
    const bool mistakes = m_result.hasMistakes();
    m_saveMistakes->setEnabled(mistakes);
    if (m_askAgain != nullptr) {
        m_askAgain->setEnabled(mistakes);
    }
    if (m_result.changesFlags()) {
        m_selectMistakes->setEnabled(mistakes);
        m_flagLine->setText(m_result.flagLine());
    }
}

void CQuizResultDialog::takeAcceptOffer()
{
    const bool takeBack = m_offersTakeBack;
    const int position = takeBack ? m_session->acceptedAnswer()->position : m_wrongAnswers.position();
    if (takeBack) {
        m_session->takeBackAcceptedAnswer();
    } else {
        m_session->acceptAnswer(position, m_wrongAnswers.answers().value(m_answers->currentIndex().row()));
    }
    m_result.model().wordChanged(position);
    updateTotals();
    selectWord(position);
    showWord(position);
    m_offersTakeBack = !takeBack;
    updateAcceptOffer();
}

void CQuizResultDialog::copyTable()
{
    const CWaitCursor wait;
    QGuiApplication::clipboard()->setText(m_result.table());
}

void CQuizResultDialog::openFlagSettings()
{
    auto *dialog =
        new CFlagSettingsDialog(m_services.resultSettings, m_services.texts, m_services.prompt, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    openHelpOnF1(*dialog, m_services);
    connect(dialog, &QDialog::accepted, this, [this] {
        m_result.flagSettingsConfirmed();
        updateTotals();
    });
    dialog->open();
}

void CQuizResultDialog::accept()
{
    if (m_result.changesFlags()) {
        const CWaitCursor wait;
        m_result.applyFlags();
    }
    QDialog::accept();
}
