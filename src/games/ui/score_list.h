// SPDX-License-Identifier: MIT
#pragma once

#include "games/contest_standing.h"

#include <QTreeWidget>

class CTexts;

/// The players of a word contest with their points. The one whose turn it is stands out.
class CScoreList : public QTreeWidget
{
    Q_OBJECT

public:
    CScoreList(const CTexts &texts, QWidget *parent);

    /// `spokenTurn` is how the row of the player whose turn it is is read out.
    void showPlayers(const std::vector<ContestPlayer> &players, int onTurn, const QString &spokenTurn);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;

private:
    int heightOf(int rows) const;
    void markTurn();

    int m_onTurn = -1;
};
