// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CQuizSettingsForm;

/// The page of quiz settings on the course of a quiz.
class CQuizSettings1 : public QWidget
{
    Q_OBJECT

public:
    explicit CQuizSettings1(CQuizSettingsForm &form, QWidget *parent = nullptr);
};
