// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/answer_check.h"
#include "quiz/flag_limits.h"
#include "quiz/quiz_kinds.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>
#include <span>
#include <vector>

class CRandom;
class CWin32Doc;
class CWordList;
struct QuizSettings;

/// What a session learns about one of its words.
struct QuizWordRecord
{
    /// Every answer given, oldest first; a skipped word adds none.
    QStringList answers;
    int rightCount = 0;
    bool askedThisRound = false;
    bool wrongThisRound = false; // Then it is asked again in a requiz round.
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
    CQuizSession(CWin32Doc &document, const QuizSettings &settings, CRandom &random,
        std::span<const int> selected, QuizAnswers answers = QuizAnswers::AreShown);
    /// Another session over the words answered wrong, with the same direction and judging.
    std::shared_ptr<CQuizSession> overMistakes() const;

    /// Begins the next re-quiz or base round; false when the quiz is over.
    bool startRound();
    int roundSize() const { return int(m_roundOrder.size()); }
    int wordCount() const { return int(m_candidates.size()); }
    /// How many words were left out since there is no answer to give for them.
    int unanswerableCount() const { return m_unanswerable; }
    int baseRound() const { return m_baseRound; }
    /// 0 in a base round.
    int requizRound() const { return m_requizRound; }
    int totalRight() const { return m_totalRight; }
    int totalWrong() const { return m_totalWrong; }
    /// The entries of the session by position: ascending indices into the list.
    const std::vector<int> &candidates() const { return m_candidates; }
    const QuizWordRecord &record(int position) const { return m_records[size_t(position)]; }
    int positionOfRound(int roundPosition) const { return m_roundOrder[size_t(roundPosition)]; }
    /// The entry asked at a round position, as an index into the list.
    int entryOfRound(int roundPosition) const { return m_candidates[size_t(positionOfRound(roundPosition))]; }
    /// The position of the word answered last.
    std::optional<int> lastAnswered() const { return m_lastAnswered; }
    int answerColumn() const { return 1 - m_questionColumn; }
    const CheckingOptions &checkingOptions() const { return m_options; }
    const QuizSettings &settings() const { return m_settings; }
    CWin32Doc &document() const { return m_document; }

    /// The question about the word at a round position, or at a position.
    QuizQuestion questionOfRound(int roundPosition) const;
    QuizQuestion questionAt(int position) const;
    /// The question as it is put: by the list's own template for this direction, else by `defaultTemplate`.
    QString questionText(int roundPosition, const QString &defaultTemplate) const;

    /// Judges an answer to the word at a position, as its entry is now.
    AnswerVerdict judge(int position, const QString &answer) const;
    /// The first other word that an answer would be right for.
    std::optional<int> otherWordOf(int position, const QString &answer) const;
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

    /// Whether one of them is wrong.
    bool wasWrong(int position) const { return record(position).rightCount < record(position).answers.size(); }
    /// The entries of words answered wrong, ascending.
    std::vector<int> mistakes() const;

    // What a quiz changes in the list, and what follows it (quiz_session_changes.cpp)
    /// The one way to change the list during a quiz and its result: everything is one step for undo.
    void changeList(const std::function<void(CWordList &)> &change);
    /// Replaces the texts of any entry of the list. Does nothing when they are those that it has; call
    /// recheckAll() after one or more changes.
    void changeEntry(int index, const QString &term1, const QString &term2, const QString &note);
    /// Flags the word at a round position in the language of the question.
    void flagWord(int roundPosition);
    /// Whether a wrong answer would be right as a further alternative of its entry, and changes are allowed.
    bool mayAccept(int position, const QString &answer) const;
    /// Makes it one and judges again. Returns false when it may not be.
    bool acceptAnswer(int position, const QString &answer);
    /// What was accepted last, until the next answer or change of an entry.
    struct AcceptedAnswer
    {
        int position = 0;
        QString answer;
        CWordEntry before;
    };
    const std::optional<AcceptedAnswer> &acceptedAnswer() const { return m_accepted; }
    /// Gives the entry the texts that it had before, and judges again.
    void takeBackAcceptedAnswer();
    FlagDecision flagDecision(int position, const FlagLimits &limits) const;
    FlagChanges flagChanges(const FlagLimits &limits) const;
    /// Carries the decisions out and returns how many flags changed.
    int applyFlags(const FlagLimits &limits);
    /// At the end, only the words answered wrong are to be selected in the list.
    void setSelectMistakes(bool select) { m_selectMistakes = select; }
    /// The entries to select in the list at the end; nothing when its selection is to stay.
    std::optional<std::vector<int>> entriesToSelect() const;

private:
    CQuizSession(const CQuizSession &earlier, std::vector<int> entries);
    void selectWords(std::span<const int> selected, CRandom &random, QuizAnswers answers);
    /// Not with the word `last` first.
    void shuffleAvoiding(std::optional<int> last);
    CWordEntry entryAccepting(int position, const QString &answer) const;
    void count(int position, AnswerVerdict verdict);
    /// The first words that a text would be right for.
    struct WordsOfAnswer
    {
        int first;
        std::optional<int> second = {};
    };
    void indexAnswers() const;

    CWin32Doc &m_document;
    const QuizSettings &m_settings;
    CRandom &m_random;
    int m_questionColumn;
    CheckingOptions m_options;
    int m_requizLimit; // The most requiz rounds after each base round.
    int m_baseRound = 0;
    int m_requizRound = 0;
    std::vector<QuizWordRecord> m_records;
    std::vector<int> m_roundOrder; // Positions in the order they are asked.
    std::vector<int> m_candidates;
    int m_unanswerable = 0;
    std::vector<int> m_wrongList; // Positions answered wrong in this round, each once.
    int m_totalRight = 0;
    int m_totalWrong = 0;
    std::optional<int> m_lastAnswered;
    std::optional<AcceptedAnswer> m_accepted;
    bool m_selectMistakes = false;
    /// By what counts of the texts that are right; filled when it is needed, until an entry is another.
    mutable QHash<QString, WordsOfAnswer> m_wordsByAnswer;
    std::optional<quint64> m_ownChange; // The document's change counter after the session's last change.
};
