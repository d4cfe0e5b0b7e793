// SPDX-License-Identifier: MIT
#pragma once

#include "settings/sections.h"

// What can be chosen; the numbers are those that are stored.

/// Which language is asked; the other is expected.
enum class QuizDirection { FromLanguage1 = 0, FromLanguage2 = 1 };
/// What counts when an answer is compared.
enum class CharacterCheck { AllCharacters = 0, OnlyLetters = 1, LettersAndSpaces = 2 };
enum class QuizOrder { AsInList = 0, Backwards = 1, Random = 2 };
enum class WordsToQuiz { All = 0, FixedNumber = 1, FixedShare = 2, Selected = 3 };
enum class IncludeFlagged { Never = 0, Always = 1, Sometimes = 2 };
/// What becomes of a word answered wrong: nothing, a round of all such after each round, or it is asked again.
enum class Requiz { None = 0, AfterRound = 1, AtOnce = 2 };
enum class FlagState { Off = 0, On = 1 };

/// The direction, order, selection and judging of quizzes.
struct QuizSettings
{
    static constexpr int KindCount = 9;

    bool playRight;
    bool playWrong;
    QString rightSoundFile;
    QString wrongSoundFile;
    QuizDirection showLanguage;
    CharacterCheck characterCheck;
    bool showAnswer;
    bool showAnswerIfOneCorrect;
    bool ignoreCase;
    Requiz requiz;
    /// Limits the rounds of Requiz::AfterRound to `requizNumber`.
    bool requizMax;
    int requizNumber;
    QuizOrder order;
    bool learning;
    bool allowChanges;
    int quizNumber;
    /// Sometimes is each with `includeFlaggedProbability` percent.
    IncludeFlagged includeFlaggedWords;
    int includeFlaggedProbability;
    bool showResult;
    /// The fixed number is `numberOfWords`, the fixed share `partOfWords` percent.
    WordsToQuiz wordsToQuiz;
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
        visit.Choice("showLanguage", showLanguage, QuizDirection::FromLanguage2, QuizDirection::FromLanguage1);
        visit.Choice(
            "characterCheck", characterCheck, CharacterCheck::LettersAndSpaces, CharacterCheck::AllCharacters);
        visit.Flag("showAnswer", showAnswer, true);
        visit.Flag("showAnswerIfOneCorrect", showAnswerIfOneCorrect, false);
        visit.Flag("ignoreCase", ignoreCase, false);
        visit.Choice("requiz", requiz, Requiz::AtOnce, Requiz::AtOnce);
        visit.Flag("requizMax", requizMax, true);
        visit.Integer("requizNumber", requizNumber, 1, 100, 3);
        visit.Choice("order", order, QuizOrder::Random, QuizOrder::Random);
        visit.Flag("learning", learning, false);
        visit.Flag("allowChanges", allowChanges, true);
        visit.Integer("quizNumber", quizNumber, 1, 100, 3);
        visit.Choice(
            "includeFlaggedWords", includeFlaggedWords, IncludeFlagged::Sometimes, IncludeFlagged::Sometimes);
        visit.Integer("includeFlaggedProbability", includeFlaggedProbability, 1, 99, 20);
        visit.Flag("showResult", showResult, true);
        visit.Choice("wordsToQuiz", wordsToQuiz, WordsToQuiz::Selected, WordsToQuiz::All);
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
    FlagState changeUnaskedTo;

    ResultSettings() { SetFactoryValues(*this); }

    template<class Visitor>
    void Visit(Visitor &visit)
    {
        visit.Flag("flagWord", flagWord, true);
        visit.Integer("flagWordLimit", flagWordLimit, 0, 100, 100);
        visit.Flag("unFlagWord", unFlagWord, true);
        visit.Integer("unFlagWordLimit", unFlagWordLimit, 0, 100, 0);
        visit.Flag("changeUnasked", changeUnasked, false);
        visit.Choice("changeUnaskedTo", changeUnaskedTo, FlagState::On, FlagState::Off);
    }
};
