// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QFont>

#include <optional>

class CQuizForm;
class CTexts;
class IUserPrompt;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// What a quiz window is handed; none of it is owned.
struct QuizWindowServices
{
    const CTexts &texts;
    IUserPrompt &prompt;
    /// The user's own font, for all quiz windows.
    std::optional<QFont> font = {};
};

/// The common base of quiz windows: statistics, the buttons that every form has, and the question before a quiz
/// is given up. A form adds its own fields above the statistics and says how to show a word.
class CQuizDialog : public QDialog
{
    Q_OBJECT

public:
    /// Asks first; only Yes closes the window, and the result is then Rejected.
    void reject() override;

protected:
    CQuizDialog(QuizWindowServices services, CQuizForm &form);

    virtual void showCurrentWord() = 0;
    void updateStatistics();
    /// After the form went on: shows the word on screen, or closes the window as finished.
    void proceed(bool more);

    const CTexts &texts() const { return m_services.texts; }
    IUserPrompt &prompt() const { return m_services.prompt; }
    /// For the form's own fields.
    QVBoxLayout *fields() const { return m_fields; }
    /// The button of Enter; the form connects it.
    QPushButton *answerButton() const { return m_answer; }

private:
    QPushButton *addButton(QVBoxLayout &column, int text, const char *name);
    QWidget *makeStatistics();
    void showResult();

    QuizWindowServices m_services;
    CQuizForm &m_form;
    QVBoxLayout *m_fields = nullptr;
    QPushButton *m_answer = nullptr;
    QLabel *m_roundText = nullptr;
    QLabel *m_wordText = nullptr;
    QLabel *m_rightText = nullptr;
    QProgressBar *m_wordBar = nullptr;
    QProgressBar *m_rightBar = nullptr;
};
