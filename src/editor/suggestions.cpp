// SPDX-License-Identifier: MIT
#include "editor/suggestions.h"

#include "dictionaries/dictionary_choices.h"
#include "dictionaries/installed_dictionaries.h"
#include "model/term_syntax.h"
#include "settings/dictionary_settings.h"

#include <utility>

CSuggestions::CSuggestions(const DictionarySettings &settings, QObject *parent)
    : QObject(parent), m_settings(settings)
{
    connect(
        &m_thread, &CTranslationThread::AnswersWaiting, this, &CSuggestions::TakeAnswers, Qt::QueuedConnection);
}

void CSuggestions::Ask(const QString &term, const QString &from, const QString &to)
{
    ++m_lastNumber; // What was asked before is of no use any more.
    m_next.reset();
    if (!m_settings.suggest || StripComments(term).isEmpty()) {
        return;
    }
    m_next = {m_lastNumber, term, from, to, DictionaryFolders(m_settings.folder),
        CDictionaryChoices(m_settings.chosen).Chosen(from, to)};
    if (!m_isAsking) {
        m_isAsking = true;
        m_thread.Translate(*std::exchange(m_next, std::nullopt));
    }
}

void CSuggestions::TakeAnswers()
{
    for (const TranslationAnswer &answer : m_thread.TakeAnswers()) {
        m_isAsking = false;
        if (answer.number == m_lastNumber && !answer.translations.isEmpty()) {
            Q_EMIT Found(answer.translations);
        }
    }
    if (!m_isAsking && m_next) {
        m_isAsking = true;
        m_thread.Translate(*std::exchange(m_next, std::nullopt));
    }
}
