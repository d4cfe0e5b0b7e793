// SPDX-License-Identifier: MIT
#include "quiz/quiz_session.h"

#include "document/win32_doc.h"
#include "platform/random.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace {

/// The most requiz rounds after each base round.
int mostRequizRounds(const QuizSettings &settings)
{
    if (settings.requiz != Requiz::AfterRound) {
        return 0;
    }
    return settings.requizMax ? settings.requizNumber : std::numeric_limits<int>::max();
}

}

CQuizSession::CQuizSession(CWin32Doc &document, const QuizSettings &settings, CRandom &random,
    std::span<const int> selected, QuizAnswers answers)
    : m_document(document), m_settings(settings), m_random(random),
      m_questionColumn(int(settings.showLanguage)), m_options{settings.ignoreCase, settings.characterCheck},
      m_requizLimit(mostRequizRounds(settings))
{
    selectWords(selected, random, answers);
    m_records.resize(m_candidates.size());
    startRound();
}

CQuizSession::CQuizSession(const CQuizSession &earlier, std::vector<int> entries)
    : m_document(earlier.m_document), m_settings(earlier.m_settings), m_random(earlier.m_random),
      m_questionColumn(earlier.m_questionColumn), m_options(earlier.m_options),
      m_requizLimit(earlier.m_requizLimit), m_records(entries.size()), m_candidates(std::move(entries))
{
    startRound();
}

std::shared_ptr<CQuizSession> CQuizSession::overMistakes() const
{
    return std::shared_ptr<CQuizSession>(new CQuizSession(*this, mistakes()));
}

void CQuizSession::selectWords(std::span<const int> selected, CRandom &random, QuizAnswers answers)
{
    const CWordList &list = m_document.List();
    if (m_settings.wordsToQuiz == WordsToQuiz::Selected && !selected.empty()) {
        m_candidates.assign(selected.begin(), selected.end());
    } else {
        m_candidates.resize(size_t(list.Count()));
        std::iota(m_candidates.begin(), m_candidates.end(), 0);
    }

    if (answers != QuizAnswers::AreShown) {
        const auto unanswerable = [&](int index) {
            const CWordEntry &entry = list.Entry(index);
            return entry.GetText(answerColumn()).isEmpty()
                || (answers == QuizAnswers::AreSpelt && entry.GetCleanTerm(answerColumn()).isEmpty());
        };
        m_unanswerable = int(std::erase_if(m_candidates, unanswerable));
    }

    const auto flagged = [&](int index) { return list.Entry(index).GetFlag(m_questionColumn); };
    if (m_settings.includeFlaggedWords != IncludeFlagged::Always
        && !std::ranges::all_of(m_candidates, flagged)) {
        const auto kept = [&](int index) {
            return !flagged(index)
                || (m_settings.includeFlaggedWords == IncludeFlagged::Sometimes
                    && m_settings.includeFlaggedProbability
                        >= random.Next() * 100.0 / double(CRandom::Maximum));
        };
        // From the last to the first, which is the order of the draws.
        std::vector<int> remaining;
        std::copy_if(m_candidates.rbegin(), m_candidates.rend(), std::back_inserter(remaining), kept);
        std::ranges::reverse(remaining);
        m_candidates = std::move(remaining);
    }

    const qint64 available = qint64(m_candidates.size());
    qint64 wanted = available;
    if (m_settings.wordsToQuiz == WordsToQuiz::FixedNumber) {
        wanted = std::clamp<qint64>(m_settings.numberOfWords, 0, available);
    } else if (m_settings.wordsToQuiz == WordsToQuiz::FixedShare && m_settings.partOfWords >= 0
        && m_settings.partOfWords <= 100) {
        wanted = std::min(std::max<qint64>((available * m_settings.partOfWords + 50) / 100, 1), available);
    }
    if (wanted < available) {
        ShuffleEvenly(m_candidates, random);
        m_candidates.resize(size_t(wanted));
        std::ranges::sort(m_candidates);
    }
}

void CQuizSession::shuffleAvoiding(std::optional<int> last)
{
    ShuffleEvenly(m_roundOrder, m_random);
    while (m_roundOrder.size() >= 2 && m_roundOrder.front() == last) {
        std::swap(m_roundOrder.front(), m_roundOrder[size_t(DrawBelow(m_random, roundSize()))]);
    }
}

bool CQuizSession::startRound()
{
    const auto last = m_roundOrder.empty() ? std::nullopt : std::optional(m_roundOrder.back());
    if (!m_wrongList.empty() && m_requizRound < m_requizLimit) {
        m_roundOrder = m_wrongList;
        ++m_requizRound;
    } else {
        if (m_candidates.empty() || ++m_baseRound > m_settings.quizNumber) {
            return false;
        }
        m_roundOrder.resize(m_candidates.size());
        std::iota(m_roundOrder.begin(), m_roundOrder.end(), 0);
        if (m_settings.order == QuizOrder::Backwards) {
            std::ranges::reverse(m_roundOrder);
        }
        m_requizRound = 0;
    }
    if (m_settings.order == QuizOrder::Random) {
        shuffleAvoiding(last);
    }
    for (QuizWordRecord &record : m_records) {
        record.askedThisRound = false;
        record.wrongThisRound = false;
    }
    m_wrongList.clear();
    return true;
}

QuizQuestion CQuizSession::questionAt(int position) const
{
    const CWordList &list = m_document.List();
    return {list.Entry(m_candidates[size_t(position)]), m_questionColumn,
        {list.GetLanguage(0), list.GetLanguage(1)}};
}

QuizQuestion CQuizSession::questionOfRound(int roundPosition) const
{
    return questionAt(positionOfRound(roundPosition));
}

QString CQuizSession::questionText(int roundPosition, const QString &defaultTemplate) const
{
    const CWordList &list = m_document.List();
    const QString &own = list.GetQuestionTemplate(m_questionColumn);
    const bool useOwn = list.GetAdaptQuestion(m_questionColumn) && !own.isEmpty();
    return expandEntryVariables(useOwn ? own : defaultTemplate, questionOfRound(roundPosition));
}

AnswerVerdict CQuizSession::judge(int position, const QString &answer) const
{
    const CWordEntry &entry = m_document.List().Entry(m_candidates[size_t(position)]);
    return checkAnswer(entry, 1 - m_questionColumn, answer, m_options);
}

void CQuizSession::indexAnswers() const
{
    for (int position = 0; position < wordCount(); ++position) {
        for (const QString &text : acceptedTexts(questionAt(position).entry, answerColumn())) {
            const QString key = normalizeForCheck(text, m_options);
            const auto known = m_wordsByAnswer.find(key);
            if (known == m_wordsByAnswer.end()) {
                m_wordsByAnswer.insert(key, {position});
            } else if (known->first != position && !known->second) {
                known->second = position;
            }
        }
    }
}

std::optional<int> CQuizSession::otherWordOf(int position, const QString &answer) const
{
    if (m_wordsByAnswer.isEmpty()) {
        indexAnswers();
    }
    const auto known = m_wordsByAnswer.constFind(normalizeForCheck(answer, m_options));
    if (known == m_wordsByAnswer.constEnd()) {
        return std::nullopt;
    }
    return known->first != position ? std::optional(known->first) : known->second;
}

void CQuizSession::count(int position, AnswerVerdict verdict)
{
    if (verdict == AnswerVerdict::Wrong) {
        ++m_totalWrong;
    } else {
        ++m_totalRight;
        ++m_records[size_t(position)].rightCount;
    }
}

AnswerVerdict CQuizSession::recordAnswer(int roundPosition, const QString &text)
{
    const int position = positionOfRound(roundPosition);
    QuizWordRecord &record = m_records[size_t(position)];
    record.answers.append(text);
    record.askedThisRound = true;
    const AnswerVerdict verdict = judge(position, text);
    count(position, verdict);
    m_lastAnswered = position;
    m_accepted.reset();
    if (verdict == AnswerVerdict::Wrong && !std::exchange(record.wrongThisRound, true)) {
        m_wrongList.push_back(position);
    }
    return verdict;
}

void CQuizSession::recheckAll()
{
    m_totalRight = 0;
    m_totalWrong = 0;
    m_wrongList.clear();
    m_wordsByAnswer.clear();
    for (int position = 0; position < wordCount(); ++position) {
        QuizWordRecord &record = m_records[size_t(position)];
        record.rightCount = 0;
        AnswerVerdict verdict = AnswerVerdict::Right;
        for (const QString &answer : std::as_const(record.answers)) {
            verdict = judge(position, answer);
            count(position, verdict);
        }
        record.wrongThisRound = record.askedThisRound && verdict == AnswerVerdict::Wrong;
        if (record.wrongThisRound) {
            m_wrongList.push_back(position);
        }
    }
}

double CQuizSession::percentRight(int position) const
{
    const QuizWordRecord &word = record(position);
    return word.answers.isEmpty() ? 0.0 : word.rightCount * 100.0 / double(word.answers.size());
}

double CQuizSession::totalPercent() const
{
    const int total = m_totalRight + m_totalWrong;
    return total == 0 ? 0.0 : m_totalRight * 100.0 / total;
}

QStringList CQuizSession::wrongAnswers(int position) const
{
    QStringList wrong = record(position).answers;
    wrong.removeIf([&](const QString &answer) { return judge(position, answer) != AnswerVerdict::Wrong; });
    return wrong;
}
