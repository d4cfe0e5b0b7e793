// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/translation_thread.h"

struct DictionarySettings;

/// Finds translations of one term of an entry while the other one is about to be typed. Nobody waits for it: of
/// questions that come faster than answers the last one alone is answered.
class CSuggestions : public QObject
{
    Q_OBJECT

public:
    /// The settings are not owned, and read anew for each term.
    explicit CSuggestions(const DictionarySettings &settings, QObject *parent = nullptr);

    /// Looks up a term of a language, to be translated into another one.
    void Ask(const QString &term, const QString &from, const QString &to);

Q_SIGNALS:
    /// What the last question found, when it is anything.
    void Found(const QStringList &translations);

private:
    void TakeAnswers();

    const DictionarySettings &m_settings;
    int m_lastNumber = 0;
    std::optional<TranslationRequest> m_next; // Until the one before is answered.
    bool m_isAsking = false;
    CTranslationThread m_thread; // Goes before what it reports to.
};
