// SPDX-License-Identifier: MIT
#pragma once

#include "dictionaries/dictionary_filter.h"
#include "dictionaries/dictionary_index.h"
#include "dictionaries/dictionary_text.h"

#include <QStringList>

/// A headword with what its articles give.
struct DictionaryEntry
{
    QString headword;
    QStringList translations = {}; ///< May be empty: some articles only refer to others.

    /// Adds those that it has not yet, up to a bounded number.
    void Add(const QStringList &more);
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
    /// The articles whose headwords begin with a text or hold it, at most `most`; none for a text without
    /// letters and digits.
    std::vector<ArticlePlace> Articles(const QString &text, HeadwordMatch match, int most) const;
    /// Those of all headwords.
    std::vector<ArticlePlace> AllArticles(int most) const { return m_index.All(most); }
    /// What an article says; nothing where it can't be read.
    std::optional<DictionaryEntry> EntryAt(const ArticlePlace &place);

private:
    void AddTranslations(
        const std::vector<ArticlePlace> &places, const QString &headword, DictionaryEntry &entry);

    CDictionaryIndex m_index;
    CDictionaryText m_text;
};
