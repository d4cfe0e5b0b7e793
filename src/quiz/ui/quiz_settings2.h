// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CQuizSettingsForm;

/// The page of quiz settings on the words that are asked.
class CQuizSettings2 : public QWidget
{
    Q_OBJECT

public:
    explicit CQuizSettings2(CQuizSettingsForm &form, QWidget *parent = nullptr);

private:
    void updateEnabled();

    const CQuizSettingsForm &m_form;
    QList<QWidget *> m_number;
    QList<QWidget *> m_share;
    QList<QWidget *> m_probability;
};
