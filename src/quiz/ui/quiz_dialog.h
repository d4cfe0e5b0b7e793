// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "quiz/answer_check.h"

#include <QDialog>
#include <QFlags>
#include <QFont>
#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

class CInputGuardFilter;
class CSpokenText;
class CQuizForm;
class CTexts;
class IFileChooser;
class ISoundPlayer;
class IUserPrompt;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;
struct QuizProgress;
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
    /// Opens the help on quizzes.
    std::function<void()> showHelp = [] {};
    /// By which it is told what was not meant for a window that opened by itself.
    Clock clock = SteadyClock;
};

/// F1 in a window opens the help on quizzes.
void openHelpOnF1(QWidget &window, const QuizWindowServices &services);

/// The parts of a quiz window that not every form has. Cancel and the line of rounds are always there.
enum class QuizPart {
    Skip = 0x01,
    Answer = 0x02, ///< The button of Enter.
    Check = 0x04,
    Change = 0x08,
    Result = 0x10,
    WordLine = 0x20,
    RightLine = 0x40,
    // Of windows that ask one word at a time:
    AcceptAnswer = 0x80, ///< "I was right".
    Flag = 0x100,
    LastAnswer = 0x200 ///< The panel that shows how the last answer was.
};
Q_DECLARE_FLAGS(QuizParts, QuizPart)
Q_DECLARE_OPERATORS_FOR_FLAGS(QuizParts)

/// The common base of quiz windows: statistics, the buttons that forms share, and the question before a quiz is
/// given up. A form's window names its parts, adds its own controls above the statistics and says how to show
/// what is to be answered; the base shows it for the first time when the window opens.
class CQuizDialog : public QDialog
{
    Q_OBJECT

public:
    /// Asks first; only Yes closes the window, and the result is then Rejected.
    void reject() override;
    QSize sizeHint() const override;
    /// How the last answer or round was, where it has not been read out, since no question followed. Whoever
    /// takes it reads it out.
    QString takeUnspokenVerdict() { return std::exchange(m_verdict, {}); }

protected:
    /// `form` must live as long as the window.
    CQuizDialog(const QuizWindowServices &services, CQuizForm &form, QuizParts parts);

    /// Shows what is to be answered now; the focus and the statistics follow.
    virtual void showCurrentWord() = 0;
    /// Gives the focus to where answers are given.
    virtual void focusInput() = 0;
    /// Whether Enter would record an answer of nothing.
    virtual bool isAnswerEmpty() const { return false; }
    /// Whether a key would answer at once: just after a question appeared, it was meant for the one before.
    virtual bool isHastyAnswer(const QKeyEvent &key) const;
    /// The same where nothing is typed: whether the key presses a button.
    static bool pressesButton(const QKeyEvent &key);
    /// What is to be answered now, as it is read out; empty where the focus says it.
    virtual QString spokenQuestion() const { return {}; }
    /// The lines of statistics, and what else follows from the answers so far.
    virtual void updateStatistics();

    /// What showCurrentWord() shows is new: keys and clicks meant for what was there before don't answer it.
    void showNextWord();
    /// Reads out what appeared without a key, behind the verdict on an answer where one was given.
    void speak(const QString &text);
    /// The sound of an answer and the text about it, where there are such. `spoken` tells how it was, in front
    /// of what is read out next; without it that is the verdict in a word.
    void showFeedback(
        AnswerVerdict verdict, const std::optional<FeedbackText> &feedback, const QString &spoken = {});

    const CTexts &texts() const { return m_services.texts; }
    IUserPrompt &prompt() const { return m_services.prompt; }
    const CQuizForm &form() const { return m_form; }
    QuizParts parts() const { return m_parts; }
    /// For the form's own controls.
    QVBoxLayout *content() const { return m_content; }
    /// The button of a part; null when the window doesn't have it.
    QPushButton *button(QuizPart part) const { return m_buttons.value(part); }
    /// A button of the form's own, below the others.
    QPushButton *addButton(int text, const char *name);

    void showEvent(QShowEvent *event) override;

private:
    struct Line
    {
        QLabel *label = nullptr;
        QProgressBar *bar = nullptr;
    };
    void makeButtons();
    QWidget *makeStatistics();
    void changeEntry();
    void showResult();
    static void showProgress(const Line &line, const QuizProgress &progress);

    QuizWindowServices m_services;
    CQuizForm &m_form;
    QuizParts m_parts;
    CInputGuardFilter *m_guard;
    CSpokenText *m_spoken;
    QString m_verdict; // Not read out yet.
    QVBoxLayout *m_content;
    QVBoxLayout *m_buttonColumn;
    QHash<QuizPart, QPushButton *> m_buttons;
    QLabel *m_roundText = nullptr;
    Line m_wordLine;
    Line m_rightLine;
    bool m_wasShown = false;
};
