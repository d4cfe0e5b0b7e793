// SPDX-License-Identifier: MIT
#include "dictionaries/words_thread.h"

void CWordsThread::LookUp(const WordsRequest &request)
{
    Stop(true);
    m_request = request;
    Start();
}

void CWordsThread::Post(const WordsMessage &message)
{
    if (m_messages.Post(message, message.isEnd)) {
        Q_EMIT MessagesWaiting();
    }
}

void CWordsThread::Run()
{
    constexpr int Step = 100; // Entries between two messages.
    if (m_request.index != m_opened) {
        m_opened = m_dictionary.Open(m_request.index, m_request.text) ? m_request.index : QString();
    }
    WordsMessage end = {.number = m_request.number, .isEnd = true, .canRead = !m_opened.isEmpty()};
    if (end.canRead) {
        int told = 0;
        end.words = LookUpWords(m_dictionary, m_request.filter, [&](int entries) {
            if (entries >= told + Step) {
                told = entries;
                Post({.number = m_request.number, .entries = entries});
            }
            return IsRunning();
        });
        end.entries = int(end.words.entries.size());
    }
    Post(end);
}
