// SPDX-License-Identifier: MIT
#pragma once

#include "games/contest_standing.h"

#include <QDialog>

class QTreeWidget;
struct QuizWindowServices;

/// Shows how a word contest ended. It opens by itself.
class CContestStandingDialog : public QDialog
{
    Q_OBJECT

public:
    /// `verdict` on the last answer is read out first, if it was not yet.
    CContestStandingDialog(const std::vector<ContestPlayer> &players, const QuizWindowServices &services,
        const QString &verdict, QWidget *parent);

private:
    QTreeWidget *makeList(const std::vector<ContestPlace> &standing, const QuizWindowServices &services);
};
