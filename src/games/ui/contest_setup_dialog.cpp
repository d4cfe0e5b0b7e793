// SPDX-License-Identifier: MIT
#include "games/ui/contest_setup_dialog.h"

#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/elided_label.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/spoken_text.h"
#include "quiz/ui/quiz_dialog.h"
#include "resources/texts.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

using Name = CContestSetup::Name;

CContestSetupDialog::CContestSetupDialog(
    CContestSetup &setup, const QuizWindowServices &services, QWidget *parent)
    : QDialog(parent), m_setup(setup), m_texts(services.texts), m_list(new QListWidget(this)),
      m_name(new QLineEdit(this)), m_hint(new CElidedLabel(this)), m_spoken(new CSpokenText(this)),
      m_add(makeButton(Text::AddPlayer, "addButton")), m_remove(makeButton(Text::RemovePlayer, "removeButton")),
      m_up(makeButton(Text::MovePlayerUp, "upButton")), m_down(makeButton(Text::MovePlayerDown, "downButton"))
{
    setObjectName(QStringLiteral("contestSetup"));
    setWindowTitle(m_texts.Get(Text::ContestTitle));
    setWindowModality(Qt::WindowModal);
    if (services.font) {
        setFont(*services.font);
    }
    makeList();
    m_name->setObjectName(QStringLiteral("name"));
    m_hint->setObjectName(QStringLiteral("hint"));
    m_spoken->hide(); // Until there is something to say.
    auto *const time = new CNumberField(CContestSetup::Times, setup.time(), this);
    time->setObjectName(QStringLiteral("time"));
    connect(time, &CNumberField::NumberEntered, this, [this](int seconds) { m_setup.setTime(seconds); });

    auto *grid = new QGridLayout;
    const auto addRow = [&](int row, int caption, QWidget *control) {
        QLabel *const label = MakeLabel(m_texts.Get(caption), this);
        label->setBuddy(control);
        control->setAccessibleName(CaptionReadOut(label->text()));
        grid->addWidget(label, row, 0);
    };
    addRow(0, Text::PlayerName, m_name);
    grid->addWidget(m_name, 0, 1);
    grid->addWidget(m_add, 0, 2);
    grid->addWidget(m_hint, 1, 1, 1, 2);
    auto *column = new QVBoxLayout;
    for (QPushButton *const button : {m_up, m_down, m_remove}) {
        column->addWidget(button);
    }
    column->addStretch(1);
    grid->addWidget(m_list, 2, 0, 1, 2);
    grid->addLayout(column, 2, 2);
    addRow(3, Text::TimeToThink, time);
    auto *timeLine = new QHBoxLayout;
    timeLine->addWidget(time);
    timeLine->addWidget(MakeLabel(m_texts.Get(Text::SecondsUnit), this));
    timeLine->addStretch(1);
    grid->addLayout(timeLine, 3, 1, 1, 2);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    makeButtons(*layout);
    const QList<QWidget *> order = {m_name, m_add, m_list, m_up, m_down, m_remove, time, m_start};
    for (qsizetype widget = 1; widget < order.size(); ++widget) {
        setTabOrder(order.at(widget - 1), order.at(widget));
    }
    showPlayers(0);
    m_name->setFocus();
    NoticeHeldKeys(*this);
    openHelpOnF1(*this, services);
}

QPushButton *CContestSetupDialog::makeButton(int text, const char *name)
{
    auto *const button = new QPushButton(m_texts.Get(text), this);
    button->setObjectName(QLatin1StringView(name));
    return button;
}

void CContestSetupDialog::makeList()
{
    m_list->setObjectName(QStringLiteral("players"));
    m_list->setAccessibleName(m_texts.Get(Text::Players));
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * 6);
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    connect(m_list, &QListWidget::currentRowChanged, this, &CContestSetupDialog::refresh);
    connect(m_name, &QLineEdit::textChanged, this, &CContestSetupDialog::refresh);
    connect(m_add, &QPushButton::clicked, this, &CContestSetupDialog::add);
    connect(m_remove, &QPushButton::clicked, this, &CContestSetupDialog::remove);
    connect(m_up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { move(1); });
}

void CContestSetupDialog::makeButtons(QVBoxLayout &layout)
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    m_start = makeButton(Text::StartContest, "startButton");
    buttons->addButton(m_start, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CContestSetupDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout.addWidget(buttons);
}

void CContestSetupDialog::showPlayers(int current)
{
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        m_list->addItems(m_setup.players());
        m_list->setCurrentRow(std::min(current, m_list->count() - 1));
    }
    refresh();
}

void CContestSetupDialog::add()
{
    if (m_setup.add(m_name->text())) {
        m_name->clear();
        showPlayers(int(m_setup.players().size()) - 1);
    }
    m_name->setFocus();
}

void CContestSetupDialog::remove()
{
    const int player = m_list->currentRow();
    m_setup.remove(player);
    showPlayers(player);
}

void CContestSetupDialog::move(int step)
{
    const int player = m_list->currentRow();
    if (m_setup.move(player, step)) {
        showPlayers(player + step);
    }
}

QString CContestSetupDialog::hint() const
{
    switch (m_setup.check(m_name->text())) {
    case Name::Free:
        break;
    case Name::Empty:
        return m_setup.mayStart()
            ? QString()
            : m_texts.Fill(Text::TooFewPlayers, {QString::number(CContestSetup::FewestPlayers)});
    case Name::TooLong:
        return m_texts.Fill(Text::NameTooLong, {QString::number(CContestSetup::LongestName)});
    case Name::Taken:
        return m_texts.Get(Text::NameTaken);
    case Name::OneTooMany:
        return m_texts.Fill(Text::TooManyPlayers, {QString::number(CContestSetup::MostPlayers)});
    }
    return {};
}

void CContestSetupDialog::refresh()
{
    const int player = m_list->currentRow();
    const int last = int(m_setup.players().size()) - 1;
    m_add->setEnabled(m_setup.check(m_name->text()) == Name::Free);
    m_remove->setEnabled(player >= 0);
    m_up->setEnabled(player > 0);
    m_down->setEnabled(player >= 0 && player < last);
    m_start->setEnabled(m_setup.mayStart());
    // Enter adds what was typed; one more begins.
    QPushButton *const next = m_name->text().trimmed().isEmpty() ? m_start : m_add;
    next->setDefault(true);
    if (const QString text = hint(); text != m_hint->text()) {
        m_hint->ShowText(text);
        m_name->setAccessibleDescription(text);
        if (isVisible() && !text.isEmpty()) {
            m_spoken->Say(text);
        }
    }
}

void CContestSetupDialog::accept()
{
    m_setup.add(m_name->text());
    if (m_setup.mayStart()) {
        QDialog::accept();
    }
}
