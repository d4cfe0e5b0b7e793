// SPDX-License-Identifier: MIT
#include "quiz/whole_round_form.h"

#include "document/win32_doc.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <algorithm>

CWholeRoundForm::CWholeRoundForm(const QuizStart &start, int questionColumn)
    : CQuizForm(start), m_questionColumn(questionColumn)
{
}

QString CWholeRoundForm::columnTitle(int column) const
{
    const int answers = session()->answerColumn();
    const int language = column == m_questionColumn ? 1 - answers : answers;
    return session()->document().List().GetLanguage(language);
}

QString CWholeRoundForm::questionTerm(int roundPosition) const
{
    const QuizQuestion question = session()->questionOfRound(roundPosition);
    return question.entry.GetText(question.questionColumn);
}

QString CWholeRoundForm::answerTerm(int roundPosition) const
{
    const QuizQuestion question = session()->questionOfRound(roundPosition);
    return question.entry.GetText(question.answerColumn());
}

void CWholeRoundForm::selectRow(int row)
{
    if (row >= 0 && row < rowCount()) {
        m_currentRow = row;
    }
}

std::optional<int> CWholeRoundForm::findRow(const QString &typed, int start) const
{
    if (m_isChecked) {
        return std::nullopt;
    }
    const CTextMatcher matcher(TextSearch{.text = typed});
    const int count = rowCount();
    for (int step = 0; step < count; ++step) {
        const int row = (start + step) % count;
        if (matcher.IsPrefixOf(cell(row, 0))) {
            return row;
        }
    }
    return std::nullopt;
}

CWholeRoundForm::Outcome CWholeRoundForm::check()
{
    std::vector<AnswerVerdict> verdicts;
    verdicts.reserve(size_t(session()->roundSize()));
    for (int row = 0; row < session()->roundSize(); ++row) {
        verdicts.push_back(session()->recordAnswer(row, answerOf(row)));
    }
    const auto wrong = std::ranges::count(verdicts, AnswerVerdict::Wrong);
    m_summary = wrong == 0 ? texts().Get(Text::AllWordsRight)
                           : texts().Fill(Text::WordsWrong, {QString::number(wrong)});
    m_currentRow = 0;
    m_isChecked = fillMistakes(verdicts);
    if (wrong > 0) {
        return {AnswerVerdict::Wrong, std::nullopt, m_summary};
    }
    return {AnswerVerdict::Right, FeedbackText{Text::AllWordsRight, m_summary}, m_summary};
}

bool CWholeRoundForm::startRound()
{
    if (!session()->startRound()) {
        return false;
    }
    m_isChecked = false;
    m_currentRow = 0;
    fillRound();
    return true;
}
