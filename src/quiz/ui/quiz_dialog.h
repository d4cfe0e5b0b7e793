// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "quiz/answer_check.h"

#include <QDialog>
#include <QFont>
#include <QStringList>

#include <optional>

class CAcceptAnswerBar;
class CInputGuardFilter;
class CQuizForm;
class CTexts;
class IFileChooser;
class ISoundPlayer;
class IUserPrompt;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;
struct ResultSettings;

/// What a quiz window is handed; none of it is owned.
struct QuizWindowServices
{
    const CTexts &texts;
    IUserPrompt &prompt;
    ISoundPlayer &sounds;
    /// For what is saved from the window of results.
    IFileChooser &chooser;
    ResultSettings &resultSettings;
    /// Where sounds are looked for that are named without a folder.
    QStringList dataFolders = {};
    /// The user's own font, for all quiz windows.
    std::optional<QFont> font = {};
    /// By which it is told what was not meant for a window that opened by itself.
    Clock clock = SteadyClock;
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
    CQuizDialog(const QuizWindowServices &services, CQuizForm &form);

    virtual void showCurrentWord() = 0;
    /// Gives the focus to where answers are given.
    virtual void focusInput() = 0;
    /// Whether Enter would record an answer of nothing.
    virtual bool isAnswerEmpty() const = 0;
    void updateStatistics();
    /// After the form went on: shows the word on screen, or closes the window as finished.
    void proceed(bool more);
    /// The sound of an answer and the text about it, where there are such.
    void showFeedback(AnswerVerdict verdict, const std::optional<FeedbackText> &feedback);

    const CTexts &texts() const { return m_services.texts; }
    IUserPrompt &prompt() const { return m_services.prompt; }
    /// For the form's own fields.
    QVBoxLayout *fields() const { return m_fields; }
    /// The button of Enter; the form connects it.
    QPushButton *answerButton() const { return m_answer; }

    void showEvent(QShowEvent *event) override;

private:
    QPushButton *addButton(QVBoxLayout &column, int text, const char *name);
    QWidget *makeStatistics();
    void changeEntry();
    void showResult();
    void takeAcceptOffer();

    void showNextWord();

    QuizWindowServices m_services;
    CQuizForm &m_form;
    CInputGuardFilter *m_guard;
    QVBoxLayout *m_fields = nullptr;
    bool m_wasShown = false;
    QPushButton *m_answer = nullptr;
    QPushButton *m_change = nullptr;
    CAcceptAnswerBar *m_accept = nullptr;
    QLabel *m_roundText = nullptr;
    QLabel *m_wordText = nullptr;
    QLabel *m_rightText = nullptr;
    QProgressBar *m_wordBar = nullptr;
    QProgressBar *m_rightBar = nullptr;
};
