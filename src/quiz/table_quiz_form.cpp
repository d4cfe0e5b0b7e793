// SPDX-License-Identifier: MIT
#include "quiz/table_quiz_form.h"

#include "model/term_syntax.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <utility>

CTableQuizForm::CTableQuizForm(const QuizStart &start)
    : CWholeRoundForm(start, 0), m_answers(size_t(session()->roundSize()))
{
}

int CTableQuizForm::rowCount() const
{
    return int(isChecked() ? m_checkedRows.size() : m_answers.size());
}

QString CTableQuizForm::cell(int row, int column) const
{
    if (!isChecked()) {
        return column == questionColumn() ? questionTerm(row) : m_answers[size_t(row)];
    }
    const int position = m_checkedRows[size_t(row)];
    if (position == Separator) {
        return texts().Get(Text::RightWithSynonyms);
    }
    return column == questionColumn() ? questionTerm(position) : answerTerm(position);
}

bool CTableQuizForm::hasMark(int row, int column) const
{
    return !isChecked() && column != questionColumn() && !m_answers[size_t(row)].isEmpty();
}

QString CTableQuizForm::question() const
{
    if (isChecked()) {
        return summary();
    }
    return m_answers.empty() ? QString()
                             : session()->questionText(currentRow(), texts().Get(Text::StandardQuestion));
}

QString CTableQuizForm::currentAnswer() const
{
    return isChecked() || m_answers.empty() ? QString() : m_answers[size_t(currentRow())];
}

void CTableQuizForm::storeAnswer(const QString &typed)
{
    if (!isChecked() && !m_answers.empty()) {
        m_answers[size_t(currentRow())] = NormalizeTerm(typed);
    }
}

void CTableQuizForm::answer(const QString &typed)
{
    storeAnswer(typed);
    if (!isChecked() && !m_answers.empty()) {
        selectRow((currentRow() + 1) % rowCount());
    }
}

void CTableQuizForm::fillRound()
{
    m_answers.assign(size_t(session()->roundSize()), QString());
}

bool CTableQuizForm::fillMistakes(const std::vector<AnswerVerdict> &verdicts)
{
    std::vector<int> wrong;
    std::vector<int> oneOfSeveral;
    for (int position = 0; position < int(verdicts.size()); ++position) {
        const AnswerVerdict verdict = verdicts[size_t(position)];
        if (verdict == AnswerVerdict::Wrong && settings().showAnswer) {
            wrong.push_back(position);
        } else if (verdict == AnswerVerdict::RightOneOfSeveral && settings().showAnswerIfOneCorrect) {
            oneOfSeveral.push_back(position);
        }
    }
    m_checkedRows = std::move(wrong);
    if (!oneOfSeveral.empty()) {
        m_checkedRows.push_back(Separator);
        m_checkedRows.insert(m_checkedRows.end(), oneOfSeveral.begin(), oneOfSeveral.end());
    }
    return true;
}
