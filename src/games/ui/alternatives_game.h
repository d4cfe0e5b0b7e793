// SPDX-License-Identifier: MIT
#pragma once

#include "games/alternatives_form.h"
#include "quiz/ui/word_by_word_dialog.h"

class CAnswerButton;
class CAnswerKeys;
class CAnswerList;

/// The window of the alternatives game. Answers are chosen by click or by their digits.
class CAlternativesGame : public CWordByWordDialog
{
    Q_OBJECT

public:
    CAlternativesGame(const QuizWindowServices &services, std::unique_ptr<CAlternativesForm> form);

protected:
    void showCurrentWord() override;
    void focusInput() override;
    bool isHastyAnswer(const QKeyEvent &key) const override;
    QString spokenQuestion() const override { return m_form->spoken(); }
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// That of all four.
    QFont answerFont() const;
    void choose(int number);
    void markAnswers(int chosen);

    std::unique_ptr<CAlternativesForm> m_form;
    CAnswerList *m_list;
    QList<CAnswerButton *> m_answers;
    CAnswerKeys *m_keys;
};
