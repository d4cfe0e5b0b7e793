// SPDX-License-Identifier: MIT
#include "games/alternatives_form.h"

#include "document/win32_doc.h"
#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/random.h"
#include "resources/texts.h"

#include <algorithm>

namespace {

constexpr qsizetype LongestSpoken = 180; // That the question and all answers are heard.

}

void CAlternativesForm::drawAnswers()
{
    const int entries = session()->document().List().Count();
    m_entries = {currentEntry()};
    while (answerCount() < std::min(MostAnswers, entries)) {
        int entry = int(DrawBelow(start().random, entries));
        while (std::ranges::find(m_entries, entry) != m_entries.end()) {
            entry = (entry + 1) % entries;
        }
        m_entries.push_back(entry);
    }
    ShuffleEvenly(m_entries, start().random);
}

QString CAlternativesForm::answer(int number) const
{
    return session()->document().List().Entry(m_entries[size_t(number)]).GetText(session()->answerColumn());
}

bool CAlternativesForm::isRight(int number) const
{
    return session()->judge(session()->positionOfRound(roundPosition()), answer(number))
        != AnswerVerdict::Wrong;
}

QString CAlternativesForm::spokenAnswer(int number) const
{
    return texts().Fill(
        Text::SpokenAlternative, {QString::number(number + 1), ShownShort(answer(number), LongestSpoken)});
}

QString CAlternativesForm::spoken() const
{
    QString spoken = ShownShort(question(), LongestSpoken);
    for (int number = 0; number < answerCount(); ++number) {
        spoken += u'\n' + spokenAnswer(number);
    }
    return spoken;
}
