// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

/// The direction, order, selection and judging of quizzes.
struct QuizSettings
{
    static constexpr int KindCount = 9;
    enum Order { InListOrder = 0, Backwards = 1, InRandomOrder = 2 };
    enum WordsToQuiz { AllWords = 0, FixedNumber = 1, FixedShare = 2, SelectedWords = 3 };
    enum IncludeFlaggedWords { Never = 0, Always = 1, Sometimes = 2 };
    enum Requiz { NoRequiz = 0, RequizAfterRound = 1, AskAgainAtOnce = 2 };

    bool playRight;
    bool playWrong;
    QString rightSoundFile;
    QString wrongSoundFile;
    /// 0 asks language 1 and expects language 2, 1 the reverse.
    int showLanguage;
    /// 0 all characters count, 1 only letters, 2 letters and spaces.
    int characterCheck;
    bool showAnswer;
    bool showAnswerIfOneCorrect;
    bool ignoreCase;
    /// Requiz: rounds of the wrong words after each round, or a wrong word again at once.
    int requiz;
    /// Limits the rounds of RequizAfterRound to `requizNumber`.
    bool requizMax;
    int requizNumber;
    /// Order
    int order;
    bool learning;
    bool allowChanges;
    int quizNumber;
    /// IncludeFlaggedWords: sometimes is each with `includeFlaggedProbability` percent.
    int includeFlaggedWords;
    int includeFlaggedProbability;
    bool showResult;
    /// WordsToQuiz: the fixed number is `numberOfWords`, the fixed share `partOfWords` percent.
    int wordsToQuiz;
    int numberOfWords;
    int partOfWords;
    bool selectedTestedWordsAfterQuiz;

    QuizSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int None = CRegistrySettings::NO_BOUND;
        visit.Flag("playRight", playRight, true);
        visit.Flag("playWrong", playWrong, true);
        // Both sounds serve all quizzes and are kept with the word contest.
        visit.Text("rightSoundFile", rightSoundFile, "right.wav", "quiz\\quizchallenge");
        visit.Text("wrongSoundFile", wrongSoundFile, "wrong.wav", "quiz\\quizchallenge");
        visit.Integer("showLanguage", showLanguage, 0, 1, 0);
        visit.Integer("characterCheck", characterCheck, 0, 2, 0);
        visit.Flag("showAnswer", showAnswer, true);
        visit.Flag("showAnswerIfOneCorrect", showAnswerIfOneCorrect, false);
        visit.Flag("ignoreCase", ignoreCase, false);
        visit.Integer("requiz", requiz, 0, 2, 2);
        visit.Flag("requizMax", requizMax, true);
        visit.Integer("requizNumber", requizNumber, 1, 100, 3);
        visit.Integer("order", order, 0, 2, 2);
        visit.Flag("learning", learning, false);
        visit.Flag("allowChanges", allowChanges, true);
        visit.Integer("quizNumber", quizNumber, 1, 100, 3);
        visit.Integer("includeFlaggedWords", includeFlaggedWords, 0, 2, 2);
        visit.Integer("includeFlaggedProbability", includeFlaggedProbability, 1, 99, 20);
        visit.Flag("showResult", showResult, true);
        visit.Integer("wordsToQuiz", wordsToQuiz, 0, 3, 0);
        visit.Integer("numberOfWords", numberOfWords, None, None, 20);
        visit.Integer("partOfWords", partOfWords, None, None, 50);
        visit.Flag("selectedTestedWordsAfterQuiz", selectedTestedWordsAfterQuiz, true);
    }
};

/// The word contest.
struct QuizChallengeSettings
{
    int time; ///< Seconds for each turn.
    QString players;

    QuizChallengeSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Integer("time", time, 3, 999, 30);
        visit.Text("players", players, "");
    }
};

/// The game of falling words.
struct FallingWordSettings
{
    int speed;

    FallingWordSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Integer("speed", speed, 10, 250, 60);
    }
};

/// The settings of the kinds that have some; not owned.
struct QuizKindSettings
{
    QuizChallengeSettings &quizChallenge;
    FallingWordSettings &fallingWord;
};

/// The remembered size of each kind's window in pixels; 0 for none.
struct QuizWindowSettings
{
    std::array<int, QuizSettings::KindCount> windowHeight;
    std::array<int, QuizSettings::KindCount> windowWidth;

    QuizWindowSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        constexpr int None = CRegistrySettings::NO_BOUND;
        for (int kind = 0; kind < QuizSettings::KindCount; ++kind) {
            const QByteArray number = QByteArray::number(kind);
            visit.Integer("windowHeight" + number, windowHeight[size_t(kind)], None, None, 0);
            visit.Integer("windowWidth" + number, windowWidth[size_t(kind)], None, None, 0);
        }
    }
};

/// What a finished quiz does to the flags of its words.
struct ResultSettings
{
    bool flagWord;
    int flagWordLimit;
    bool unFlagWord;
    int unFlagWordLimit;
    bool changeUnasked;
    int changeUnaskedTo;

    ResultSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Flag("flagWord", flagWord, true);
        visit.Integer("flagWordLimit", flagWordLimit, 0, 100, 100);
        visit.Flag("unFlagWord", unFlagWord, true);
        visit.Integer("unFlagWordLimit", unFlagWordLimit, 0, 100, 0);
        visit.Flag("changeUnasked", changeUnasked, false);
        visit.Integer("changeUnaskedTo", changeUnaskedTo, 0, 1, 0);
    }
};
