// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary_words.h"
#include "platform/thread.h"
#include "platform/thread_queue.h"

#include <QObject>

/// What is to be looked up, and in which dictionary.
struct WordsRequest
{
    int number = 0; ///< Comes back with what is found.
    QString index; ///< Path of the index.
    QString text; ///< Path of the articles.
    DictionaryFilter filter = {};
};
struct WordsMessage
{
    int number = 0;
    int entries = 0; ///< How many were found so far.
    bool isEnd = false;
    bool canRead = true; ///< The dictionary can be read.
    DictionaryWords words = {}; ///< At the end.
};

/// Looks words up on a thread of its own: many take seconds, and the disk may be slow.
class CWordsThread : public QObject, public CThread
{
    Q_OBJECT

public:
    explicit CWordsThread(QObject *parent = nullptr) : QObject(parent) { }
    ~CWordsThread() override { Stop(true); }
    CWordsThread(const CWordsThread &) = delete;
    CWordsThread &operator=(const CWordsThread &) = delete;

    /// One at a time: not before the last one ended.
    void LookUp(const WordsRequest &request);
    std::vector<WordsMessage> TakeMessages() { return m_messages.TakeAll(); }

Q_SIGNALS:
    /// Emitted on the thread: there are messages to take. The last one of a request is its end, also when it
    /// was asked to stop.
    void MessagesWaiting();

protected:
    void Run() override;

private:
    void Post(const WordsMessage &message);

    WordsRequest m_request;
    CDictionary m_dictionary;
    QString m_opened; // The path of its index; empty when none is open.
    CThreadQueue<WordsMessage> m_messages;
};
