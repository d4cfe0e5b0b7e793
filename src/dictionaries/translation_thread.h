// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary.h"
#include "platform/language_names.h"
#include "platform/thread.h"
#include "platform/thread_queue.h"

#include <QObject>

#include <optional>

/// A term to be looked up, and where.
struct TranslationRequest
{
    int number = 0; ///< Comes back with the answer.
    QString term;
    QString from; ///< A language, named as users write it.
    QString to;
    QStringList folders; ///< Of dictionaries.
    std::optional<QString> dictionary; ///< The name of the one to use; without it the languages tell.
};
struct TranslationAnswer
{
    int number = 0;
    QStringList translations;
};

/// Looks terms up on a thread of its own: a large dictionary takes a moment to open, and its disk may be slow.
class CTranslationThread : public QObject, public CThread
{
    Q_OBJECT

public:
    explicit CTranslationThread(QObject *parent = nullptr) : QObject(parent) { }
    ~CTranslationThread() override { Stop(true); }
    CTranslationThread(const CTranslationThread &) = delete;
    CTranslationThread &operator=(const CTranslationThread &) = delete;

    /// One at a time: not before the last one was answered.
    void Translate(const TranslationRequest &request);
    std::vector<TranslationAnswer> TakeAnswers() { return m_answers.TakeAll(); }

Q_SIGNALS:
    /// Emitted on the thread: there is an answer to take, maybe an empty one.
    void AnswersWaiting();

protected:
    void Run() override;

private:
    QStringList Translations();
    /// The dictionary of the request, open; null without one.
    CDictionary *Opened();

    TranslationRequest m_request;
    std::optional<CLanguageNames> m_languages;
    CDictionary m_dictionary;
    QString m_opened; // The path of its index; empty when none is open.
    CThreadQueue<TranslationAnswer> m_answers;
};
