// SPDX-License-Identifier: MIT
#include "games/ui/score_list.h"

#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/contrast.h"
#include "resources/texts.h"

#include <QEvent>
#include <QHeaderView>
#include <QPainter>

#include <algorithm>

namespace {

/// A mark beside the name, so that colour alone doesn't tell whose turn it is.
QIcon turnMark(const QColor &colour, int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const double unit = size / 8.0;
    const QPointF corners[] = {{unit, unit}, {7 * unit, 4 * unit}, {unit, 7 * unit}};
    painter.drawConvexPolygon(corners, 3);
    return QIcon(picture);
}

}

CScoreList::CScoreList(const CTexts &texts, QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("scores"));
    setAccessibleName(texts.Get(Text::Scores));
    setHeaderLabels({texts.Get(Text::Player), texts.Get(Text::Points), texts.Get(Text::Answers)});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::TabFocus);
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
}

void CScoreList::showPlayers(const std::vector<ContestPlayer> &players, int onTurn, const QString &spokenTurn)
{
    while (topLevelItemCount() < int(players.size())) {
        auto *const row = new QTreeWidgetItem(this);
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
    for (int player = 0; player < int(players.size()); ++player) {
        QTreeWidgetItem *const row = topLevelItem(player);
        row->setText(0, ShownShort(players[size_t(player)].name));
        row->setText(1, QString::number(players[size_t(player)].points));
        row->setText(2, QString::number(players[size_t(player)].answers));
        row->setData(
            0, Qt::AccessibleTextRole, player == onTurn ? QVariant(spokenTurn) : QVariant(row->text(0)));
    }
    m_onTurn = onTurn;
    markTurn();
    scrollToItem(topLevelItem(onTurn));
}

void CScoreList::markTurn()
{
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QColor tint = Mixed(base, palette().color(QPalette::Highlight), 0.25); // Text stays readable on it.
    const QIcon mark =
        turnMark(MarkColour(palette().color(QPalette::Highlight), text, tint), fontMetrics().height());
    QFont bold = font();
    bold.setBold(true);
    for (int player = 0; player < topLevelItemCount(); ++player) {
        QTreeWidgetItem *const row = topLevelItem(player);
        const bool isOn = player == m_onTurn;
        row->setIcon(0, isOn ? mark : QIcon());
        for (int column = 0; column < columnCount(); ++column) {
            row->setBackground(column, isOn ? QBrush(tint) : QBrush());
            row->setFont(column, isOn ? bold : font());
        }
    }
}

void CScoreList::changeEvent(QEvent *event)
{
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        markTurn();
    }
}

int CScoreList::heightOf(int rows) const
{
    const int row = topLevelItemCount() > 0 ? visualItemRect(topLevelItem(0)).height() : 0;
    return header()->sizeHint().height() + std::max(row, fontMetrics().height() + 2) * rows + 2 * frameWidth();
}

QSize CScoreList::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 56, heightOf(topLevelItemCount())};
}

QSize CScoreList::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 26, heightOf(std::min(topLevelItemCount(), 2))};
}
