// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "quiz/quiz_session.h"
#include "settings/quiz_settings.h"

#include <QString>

#include <memory>
#include <optional>

class CRandom;
class CTexts;

/// What a form is handed. The session is shared with the windows that show it; nothing else is owned.
struct QuizStart
{
    std::shared_ptr<CQuizSession> session;
    const QuizSettings &settings;
    QuizKindSettings kindSettings;
    const CTexts &texts;
    CRandom &random;
    Clock clock;
};

/// A line of the statistics with the bar beside it.
struct QuizProgress
{
    QString text;
    int value = 0;
    int maximum = 0;
};

/// What every quiz form and game decides, whether it asks one word at a time or all at once. Lives as long as
/// its window.
class CQuizForm
{
public:
    virtual ~CQuizForm() = default;
    CQuizForm(const CQuizForm &) = delete;
    CQuizForm &operator=(const CQuizForm &) = delete;

    const std::shared_ptr<CQuizSession> &session() const { return m_start.session; }

    /// The entry that a change is about at first, as an index into the list.
    virtual int currentEntry() const = 0;
    bool mayChangeEntries() const { return m_start.settings.allowChanges && session()->roundSize() > 0; }
    /// After entries of the list were changed.
    virtual void entriesChanged() { m_start.session->recheckAll(); }
    /// The file to play after an answer; empty for silence.
    QString sound(AnswerVerdict verdict, const QStringList &dataFolders) const;

    QString roundText() const;
    /// Nothing where words are not asked one after the other.
    virtual std::optional<QuizProgress> wordProgress() const { return std::nullopt; }
    QuizProgress rightProgress() const;

protected:
    explicit CQuizForm(const QuizStart &start) : m_start(start) { }

    const QuizSettings &settings() const { return m_start.settings; }
    const CTexts &texts() const { return m_start.texts; }
    const QuizStart &start() const { return m_start; }

private:
    QuizStart m_start;
};
