// SPDX-License-Identifier: MIT
#include "dictionaries/translation_thread.h"

#include "dictionaries/installed_dictionaries.h"

#include <algorithm>

void CTranslationThread::Translate(const TranslationRequest &request)
{
    Stop(true);
    m_request = request;
    Start();
}

void CTranslationThread::Run()
{
    if (m_answers.Post({m_request.number, Translations()}, true)) {
        Q_EMIT AnswersWaiting();
    }
}

QStringList CTranslationThread::Translations()
{
    CDictionary *const dictionary = Opened();
    return dictionary == nullptr ? QStringList() : dictionary->Translate(m_request.term);
}

CDictionary *CTranslationThread::Opened()
{
    if (!m_languages) {
        m_languages.emplace();
    }
    const std::vector<InstalledDictionary> dictionaries = FindDictionaries(m_request.folders, *m_languages);
    const auto named =
        std::ranges::find(dictionaries, m_request.dictionary.value_or(QString()), &InstalledDictionary::name);
    const InstalledDictionary *const wanted = !m_request.dictionary
        ? DictionaryFor(dictionaries, *m_languages, m_request.from, m_request.to)
        : named == dictionaries.end() ? nullptr
                                      : &*named;
    if (wanted == nullptr) {
        return nullptr;
    }
    if (wanted->index != m_opened) {
        m_opened = m_dictionary.Open(wanted->index, wanted->text) ? wanted->index : QString();
    }
    return m_opened.isEmpty() ? nullptr : &m_dictionary;
}
