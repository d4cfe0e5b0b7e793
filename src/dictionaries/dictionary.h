// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary_index.h"
#include "dictionaries/dictionary_text.h"

#include <QStringList>

/// A headword with what its articles give.
struct DictionaryEntry
{
    QString headword;
    QStringList translations; ///< May be empty: some articles only refer to others.
};

/// A dictionary on the disk in which words are looked up. Belongs to one thread at a time.
class CDictionary
{
public:
    /// The paths of its index and of its articles. Returns false for what can't be read.
    [[nodiscard]] bool Open(const QString &index, const QString &text);

    /// The translations of a term in normal form: of each of its alternatives, without comments; where there
    /// are none of "ett hus", those of "hus". Each once, in the order in which the articles give them; a
    /// bounded number.
    QStringList Translate(const QString &term);
    /// The entries whose headwords begin with a text, which must not be empty, from at most `most` articles.
    std::vector<DictionaryEntry> TranslateBeginning(const QString &start, int most);
    /// Those of all headwords, from at most `most` articles.
    std::vector<DictionaryEntry> TranslateAll(int most);

private:
    std::vector<DictionaryEntry> EntriesAt(const std::vector<ArticlePlace> &places);
    void AddTranslations(
        const std::vector<ArticlePlace> &places, const QString &headword, QStringList &translations);

    CDictionaryIndex m_index;
    CDictionaryText m_text;
};
