// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"

#include <QStringList>

#include <span>
#include <vector>

class CRandom;
class CWin32Doc;
struct QuizSettings;

/// What a session learns about one of its words.
struct QuizWordRecord
{
    /// Every answer given, oldest first; a skipped word adds none.
    QStringList answers;
    int rightCount = 0;
    bool askedThisRound = false;
};

/// The limits by which a quiz changes flags, in percent of right answers; -1 switches one off.
struct FlagLimits
{
    int flag = -1;
    int unflag = -1;
    /// What a word without an answer becomes: 0 not flagged, 1 flagged.
    int unasked = -1;
};

/// One run of a quiz over entries of the document's list: which words are asked, in which order and how often,
/// what was answered, and what follows for the flags. Knows no window. Entries are referred to by index, so the
/// list must keep its length while the session lives. A word's *position* is its place in the selection (0 to
/// wordCount() - 1); a *round position* is its place in the current round (0 to roundSize() - 1).
class CQuizSession
{
public:
    /// Selects the words and starts the first round. `selected` are the entries selected in the view,
    /// ascending. Nothing handed in is owned.
    CQuizSession(
        CWin32Doc &document, const QuizSettings &settings, CRandom &random, std::span<const int> selected);

    /// Begins the next re-quiz or base round; false when the quiz is over.
    bool startRound();
    int roundSize() const { return int(m_roundOrder.size()); }
    int wordCount() const { return int(m_candidates.size()); }
    int baseRound() const { return m_baseRound; }
    /// 0 in a base round.
    int requizRound() const { return m_requizRound; }
    int totalRight() const { return m_totalRight; }
    int totalWrong() const { return m_totalWrong; }
    /// The entries of the session by position: ascending indices into the list.
    const std::vector<int> &candidates() const { return m_candidates; }
    const QuizWordRecord &record(int position) const { return m_records[size_t(position)]; }

    /// The question about the word at a round position, or at a position.
    QuizQuestion questionOfRound(int roundPosition) const;
    QuizQuestion questionAt(int position) const;
    /// The question as it is put: by the list's own template for this direction, else by `defaultTemplate`.
    QString questionText(int roundPosition, const QString &defaultTemplate) const;

    /// Judges and records an answer as it is; the form tidies it first.
    AnswerVerdict recordAnswer(int roundPosition, const QString &text);
    /// Judges every recorded answer again, after an entry was changed.
    void recheckAll();

    /// Right answers in percent of all; 0 without answers.
    double percentRight(int position) const;
    double totalPercent() const;
    /// The recorded answers of a word that are wrong as the entry is now, oldest first.
    QStringList wrongAnswers(int position) const;
    QString nthWrongAnswer(int position, int n) const { return wrongAnswers(position).value(n); }

    /// 0 or 1: the flag stays like that; 2: it will be taken off; 3: it will be set.
    int flagDecision(int position, const FlagLimits &limits) const;
    /// Carries the decisions out and returns how many flags changed. Takes no snapshot when nothing changes.
    int applyFlags(const FlagLimits &limits);

private:
    void selectWords(std::span<const int> selected, CRandom &random);
    void shuffleAvoiding(int last);
    AnswerVerdict judge(int position, const QString &answer) const;
    void count(int position, AnswerVerdict verdict);

    CWin32Doc &m_document;
    const QuizSettings &m_settings;
    CRandom &m_random;
    int m_questionColumn;
    CheckingOptions m_options;
    int m_requizLimit; // 0 none, -1 until no word is wrong, else the most rounds after each base round.
    int m_baseRound = 0;
    int m_requizRound = 0;
    std::vector<QuizWordRecord> m_records;
    std::vector<int> m_roundOrder; // Positions in the order they are asked.
    std::vector<int> m_candidates;
    std::vector<int> m_wrongList; // Positions answered wrong in this round, each once.
    int m_totalRight = 0;
    int m_totalWrong = 0;
};
