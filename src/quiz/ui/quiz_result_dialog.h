// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class CQuizSession;
class CTexts;

/// The window that shows how a quiz went, word by word. During a quiz the answers are left out.
class CQuizResultDialog : public QDialog
{
    Q_OBJECT

public:
    enum class Mode { AfterQuiz, DuringQuiz };

    /// The session is read at once and not kept.
    CQuizResultDialog(const CQuizSession &session, const CTexts &texts, Mode mode, QWidget *parent = nullptr);
};
