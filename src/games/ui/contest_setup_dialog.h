// SPDX-License-Identifier: MIT
#pragma once

#include "games/contest_setup.h"

#include <QDialog>

class CElidedLabel;
class CSpokenText;
class CTexts;
class QLineEdit;
class QListWidget;
class QPushButton;
class QVBoxLayout;
struct QuizWindowServices;

/// Asks who takes part in a word contest.
class CContestSetupDialog : public QDialog
{
    Q_OBJECT

public:
    /// Works on the setup until it is accepted or thrown away.
    CContestSetupDialog(CContestSetup &setup, const QuizWindowServices &services, QWidget *parent);

    /// A name that still stands in its field takes part too.
    void accept() override;

private:
    void makeList();
    void makeButtons(QVBoxLayout &layout);
    QPushButton *makeButton(int text, const char *name);
    void add();
    void remove();
    void move(int step);
    void showPlayers(int current);
    void refresh();
    QString hint() const;

    CContestSetup &m_setup;
    const CTexts &m_texts;
    QListWidget *m_list;
    QLineEdit *m_name;
    CElidedLabel *m_hint;
    CSpokenText *m_spoken;
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_up;
    QPushButton *m_down;
    QPushButton *m_start = nullptr;
};
