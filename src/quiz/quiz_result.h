// SPDX-License-Identifier: MIT
#pragma once

#include "quiz/flag_limits.h"
#include "quiz/quiz_result_model.h"

#include <QString>

class IFileChooser;
class IUserPrompt;
struct ResultSettings;

/// What the window of results is handed; none of it is owned.
struct ResultServices
{
    const CTexts &texts;
    IUserPrompt &prompt;
    IFileChooser &chooser;
    ResultSettings &settings;
};

/// What the window of results shows and decides beside its rows. The session is not owned.
class CQuizResult
{
public:
    CQuizResult(CQuizSession &session, ResultServices services, ResultMode mode);

    CQuizSession &session() const { return m_session; }
    const CTexts &texts() const { return m_services.texts; }
    CQuizResultModel &model() { return m_model; }
    /// During a quiz no flags can be changed.
    bool changesFlags() const { return m_mode == ResultMode::AfterQuiz; }
    /// Whether wrong answers may be shown beside right ones: not while words may still be asked.
    bool showsRightAnswers() const;

    /// Words, answers, right answers and their share in one sentence.
    QString summary() const;
    /// The share of right answers in tenths of a percent.
    int rightShare() const;
    /// Tells of words that were left out since there is nothing to type for them; empty for none.
    QString unanswerableLine() const;
    /// How many flags will change under the settings in force. After learning, when the answers were shown,
    /// none until the user has confirmed the settings.
    QString flagLine() const;
    void flagSettingsConfirmed() { m_proposesFlags = true; }
    void applyFlags();
    /// The titles, the rows and the summary as lines with tabs between the cells.
    QString table() const;

    /// Ask for a file, and tell when it could not be written.
    void saveTable();
    void saveMistakes();
    bool hasMistakes() const;

private:
    /// Tells so: neither a table nor a part takes the place of the whole list.
    bool isListsOwnFile(const QString &path);
    FlagLimits limits() const;
    QString proposedFile(int name, const QString &suffix) const;

    CQuizSession &m_session;
    ResultServices m_services;
    ResultMode m_mode;
    bool m_proposesFlags;
    CQuizResultModel m_model;
};

/// Whether words would be both flagged and unflagged.
bool flagLimitsContradict(const ResultSettings &settings);
