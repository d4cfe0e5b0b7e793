// SPDX-License-Identifier: MIT
#include "games/pair_matching_form.h"

#include "games/text_numbers.h"
#include "platform/random.h"
#include "resources/texts.h"

#include <numeric>
#include <utility>

CPairMatchingForm::CPairMatchingForm(const QuizStart &start) : CWholeRoundForm(start, QuestionColumn)
{
    shuffleAnswers();
}

QString CPairMatchingForm::cell(int row, int column) const
{
    const Pair pair = m_pairs[size_t(row)];
    return column == AnswerColumn ? answerTerm(pair.answerPosition) : questionTerm(pair.questionPosition);
}

bool CPairMatchingForm::hasMark(int row, int column) const
{
    return column == AnswerColumn && m_marked == row;
}

QString CPairMatchingForm::hint() const
{
    return isChecked() ? summary() : texts().Get(Text::MoveWordsAround);
}

bool CPairMatchingForm::exchange(int from, int to)
{
    const auto isRow = [this](int row) { return row >= 0 && row < rowCount(); };
    if (isChecked() || from == to || !isRow(from) || !isRow(to)) {
        return false;
    }
    std::swap(m_pairs[size_t(from)].answerPosition, m_pairs[size_t(to)].answerPosition);
    m_marked.reset();
    selectRow(to);
    return true;
}

void CPairMatchingForm::markOrExchange()
{
    if (isChecked()) {
        return;
    }
    if (!m_marked) {
        m_marked = currentRow();
    } else if (!exchange(*m_marked, currentRow())) {
        m_marked.reset();
    }
}

void CPairMatchingForm::shuffleAnswers()
{
    std::vector<int> answers(size_t(session()->roundSize()));
    std::iota(answers.begin(), answers.end(), 0);
    ShuffleEvenly(answers, start().random);
    m_pairs.resize(answers.size());
    for (int row = 0; row < rowCount(); ++row) {
        m_pairs[size_t(row)] = {.answerPosition = answers[size_t(row)], .questionPosition = row};
    }
    m_marked.reset();
}

void CPairMatchingForm::fillRound()
{
    shuffleAnswers();
}

bool CPairMatchingForm::fillMistakes(const std::vector<AnswerVerdict> &verdicts)
{
    m_marked.reset();
    std::vector<Pair> wrong;
    for (int position = 0; position < int(verdicts.size()); ++position) {
        if (verdicts[size_t(position)] == AnswerVerdict::Wrong) {
            wrong.push_back({.answerPosition = position, .questionPosition = position});
        }
    }
    if (wrong.empty() || !settings().showAnswer) {
        return false;
    }
    m_pairs = std::move(wrong);
    return true;
}
