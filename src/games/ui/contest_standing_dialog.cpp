// SPDX-License-Identifier: MIT
#include "games/ui/contest_standing_dialog.h"

#include "games/text_numbers.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/spoken_text.h"
#include "platform/ui/wrapped_text.h"
#include "quiz/quiz_result_model.h"
#include "quiz/ui/quiz_dialog.h"
#include "quiz/ui/share_delegate.h"
#include "resources/texts.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

CContestStandingDialog::CContestStandingDialog(const std::vector<ContestPlayer> &players,
    const QuizWindowServices &services, const QString &verdict, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("contestStanding"));
    setWindowTitle(services.texts.Get(Text::FinalStanding));
    setWindowModality(Qt::WindowModal);
    if (services.font) {
        setFont(*services.font);
    }
    const std::vector<ContestPlace> standing = contestStanding(players);
    const QString outcome = contestOutcome(standing, services.texts);
    auto *const heading = new CWrappedText(outcome, this);
    heading->setObjectName(QStringLiteral("outcome"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.75);
    large.setBold(true);
    heading->setFont(large);
    QTreeWidget *const list = makeList(standing, services);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    const QSize wanted(fontMetrics().averageCharWidth() * 72,
        fontMetrics().lineSpacing() * (int(standing.size()) * 3 / 2 + 12));
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
    list->setFocus();
    NoticeHeldKeys(*this);
    openHelpOnF1(*this, services);
    (new CInputGuardFilter(services.clock, this))->WindowOpens(*this);
    (new CSpokenText(this))->Say(verdict.isEmpty() ? outcome : verdict + QStringLiteral(". ") + outcome);
}

QTreeWidget *CContestStandingDialog::makeList(
    const std::vector<ContestPlace> &standing, const QuizWindowServices &services)
{
    const CTexts &texts = services.texts;
    auto *const list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("standing"));
    list->setAccessibleName(windowTitle());
    list->setHeaderLabels({texts.Get(Text::Place), texts.Get(Text::Player), texts.Get(Text::Points),
        texts.Get(Text::Answers), texts.Get(Text::PercentOfAnswers)});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->setSelectionMode(QAbstractItemView::NoSelection); // There is nothing to do with a row.
    list->setItemDelegateForColumn(4, new CShareDelegate(list));
    list->header()->setDefaultAlignment(Qt::AlignCenter);
    list->headerItem()->setTextAlignment(1, Qt::AlignLeft | Qt::AlignVCenter);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionsMovable(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    list->header()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 9);
    QFont bold = font();
    bold.setBold(true);
    for (const ContestPlace &row : standing) {
        const ContestPlayer &player = row.player;
        auto *const item = new QTreeWidgetItem(list,
            {QString::number(row.place), player.name, QString::number(player.points),
                QString::number(player.answers),
                texts.Fill(Text::Percentage, {QString::number(player.percent())})});
        item->setData(4, CQuizResultModel::PercentRole, player.percent());
        for (int column = 0; column < list->columnCount(); ++column) {
            item->setFont(column, row.place == 1 ? bold : font());
            if (column != 1) {
                item->setTextAlignment(column, Qt::AlignCenter);
            }
        }
    }
    list->setCurrentItem(list->topLevelItem(0));
    list->setMinimumHeight(fontMetrics().lineSpacing() * 5);
    return list;
}
