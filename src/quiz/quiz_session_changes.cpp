// SPDX-License-Identifier: MIT
#include "quiz/quiz_session.h"

#include "document/win32_doc.h"
#include "model/term_syntax.h"
#include "quiz/rounding.h"

#include <utility>

FlagLimits FlagLimits::of(const ResultSettings &settings)
{
    return {settings.flagWord ? settings.flagWordLimit : Off,
        settings.unFlagWord ? settings.unFlagWordLimit : Off,
        settings.changeUnasked ? std::optional(settings.changeUnaskedTo) : std::nullopt};
}

void CQuizSession::changeList(const std::function<void(CWordList &)> &change)
{
    if (m_document.Change(change, m_ownChange)) {
        m_ownChange = m_document.ChangeCounter();
        m_accepted.reset();
        m_wordsByAnswer.clear();
    }
}

void CQuizSession::changeEntry(int index, const QString &term1, const QString &term2, const QString &note)
{
    changeList([&](CWordList &list) { list.ReplaceEntry(index, term1, term2, note, false); });
}

void CQuizSession::flagWord(int roundPosition)
{
    const int entry = entryOfRound(roundPosition);
    changeList([&](CWordList &list) { list.SetFlags(m_questionColumn, {&entry, 1}, FlagMode::Set); });
}

CWordEntry CQuizSession::entryAccepting(int position, const QString &answer) const
{
    CWordEntry entry = questionAt(position).entry;
    entry.SetTerm(entry.GetText(answerColumn()) + AlternativeJoint.toString() + answer, answerColumn());
    return entry;
}

bool CQuizSession::mayAccept(int position, const QString &answer) const
{
    // An answer of several alternatives, say, would not be right even as a part of the term.
    return m_settings.allowChanges && judge(position, answer) == AnswerVerdict::Wrong
        && checkAnswer(entryAccepting(position, answer), answerColumn(), answer, m_options)
        != AnswerVerdict::Wrong;
}

bool CQuizSession::acceptAnswer(int position, const QString &answer)
{
    if (!mayAccept(position, answer)) {
        return false;
    }
    const CWordEntry before = questionAt(position).entry;
    const CWordEntry changed = entryAccepting(position, answer);
    changeEntry(m_candidates[size_t(position)], changed.GetText(0), changed.GetText(1), changed.GetNote());
    m_accepted = {position, answer, before};
    recheckAll();
    return true;
}

void CQuizSession::takeBackAcceptedAnswer()
{
    if (const auto accepted = std::exchange(m_accepted, std::nullopt)) {
        const CWordEntry &before = accepted->before;
        changeEntry(
            m_candidates[size_t(accepted->position)], before.GetText(0), before.GetText(1), before.GetNote());
        recheckAll();
    }
}

std::vector<int> CQuizSession::mistakes() const
{
    std::vector<int> entries;
    for (int position = 0; position < wordCount(); ++position) {
        if (wasWrong(position)) {
            entries.push_back(m_candidates[size_t(position)]);
        }
    }
    return entries;
}

std::optional<std::vector<int>> CQuizSession::entriesToSelect() const
{
    // None is left when all of them were taken as right.
    if (const std::vector<int> wrong = mistakes(); m_selectMistakes && !wrong.empty()) {
        return wrong;
    }
    return m_settings.selectedTestedWordsAfterQuiz ? std::optional(m_candidates) : std::nullopt;
}

FlagDecision CQuizSession::flagDecision(int position, const FlagLimits &limits) const
{
    const bool isSet = m_document.List().Entry(m_candidates[size_t(position)]).GetFlag(m_questionColumn);
    bool willBeSet = isSet;
    if (record(position).answers.isEmpty()) {
        willBeSet = limits.unasked ? *limits.unasked == FlagState::On : isSet;
    } else {
        const int percent = roundHalfUp(percentRight(position));
        if (limits.unflag != FlagLimits::Off && limits.unflag >= percent) {
            willBeSet = false;
        }
        if (limits.flag != FlagLimits::Off && limits.flag <= percent) {
            willBeSet = true;
        }
    }
    if (willBeSet == isSet) {
        return isSet ? FlagDecision::StaysOn : FlagDecision::StaysOff;
    }
    return willBeSet ? FlagDecision::IsSet : FlagDecision::IsTakenOff;
}

FlagChanges CQuizSession::flagChanges(const FlagLimits &limits) const
{
    FlagChanges changes;
    for (int position = 0; position < wordCount(); ++position) {
        const FlagDecision decision = flagDecision(position, limits);
        if (decision == FlagDecision::IsSet) {
            changes.flag.push_back(m_candidates[size_t(position)]);
        } else if (decision == FlagDecision::IsTakenOff) {
            changes.unflag.push_back(m_candidates[size_t(position)]);
        }
    }
    return changes;
}

int CQuizSession::applyFlags(const FlagLimits &limits)
{
    const FlagChanges changes = flagChanges(limits);
    changeList([&](CWordList &list) {
        list.SetFlags(m_questionColumn, changes.flag, FlagMode::Set);
        list.SetFlags(m_questionColumn, changes.unflag, FlagMode::Clear);
    });
    return int(changes.flag.size() + changes.unflag.size());
}
