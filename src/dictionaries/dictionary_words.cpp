// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary_words.h"

#include "model/term_syntax.h"

#include <QHash>
#include <QSet>

namespace {

class CWordLookUp
{
public:
    CWordLookUp(CDictionary &dictionary, const DictionaryFilter &filter, const std::function<bool(int)> &goesOn)
        : m_dictionary(dictionary), m_filter(filter), m_goesOn(goesOn)
    {
    }

    DictionaryWords TakeAll()
    {
        if (m_filter.all) {
            AddArticles(m_dictionary.AllArticles(Rest() + 1));
        } else {
            for (qsizetype i = 0; i < m_filter.texts.size() && !m_words.hasMore && GoesOn(); ++i) {
                AddText(m_filter.texts.at(i));
            }
        }
        m_words.withoutTranslations = int(std::erase_if(
            m_words.entries, [](const DictionaryEntry &entry) { return entry.translations.isEmpty(); }));
        return std::move(m_words);
    }

private:
    int Rest() const { return m_filter.most - m_lookedUp; }
    bool GoesOn() const { return !m_goesOn || m_goesOn(int(m_words.entries.size())); }

    void AddText(const QString &given)
    {
        // Where a part is looked for, asterisks don't separate alternatives.
        const QString text = m_filter.match == HeadwordMatch::Whole ? NormalizeTerm(given) : given.simplified();
        if (text.isEmpty() || m_texts.contains(text)) {
            return;
        }
        m_texts.insert(text);
        bool isFound = false;
        if (m_filter.match != HeadwordMatch::Whole) {
            isFound = AddArticles(m_dictionary.Articles(text, m_filter.match, Rest() + 1));
        } else if (Rest() > 0) {
            ++m_lookedUp;
            isFound = Add({text, m_dictionary.Translate(text)});
        } else {
            m_words.hasMore = true;
            return;
        }
        if (!isFound) {
            m_words.notFound.append(text);
        }
    }
    /// Returns whether any of them has translations.
    bool AddArticles(const std::vector<ArticlePlace> &places)
    {
        bool isFound = false;
        m_words.hasMore = m_words.hasMore || int(places.size()) > Rest(); // One more than that was asked for.
        for (const ArticlePlace &place : places) {
            if (m_articles.contains(place.offset)) {
                isFound = true; // It stands under several headwords, or fits several texts.
                continue;
            }
            if (Rest() <= 0 || !GoesOn()) {
                return true;
            }
            ++m_lookedUp;
            m_articles.insert(place.offset);
            const std::optional<DictionaryEntry> entry = m_dictionary.EntryAt(place);
            isFound = (entry && Add(*entry)) || isFound;
        }
        return isFound;
    }
    bool Add(const DictionaryEntry &entry)
    {
        const auto known = m_places.constFind(entry.headword);
        if (known != m_places.constEnd()) {
            m_words.entries[*known].Add(entry.translations);
        } else {
            m_places.insert(entry.headword, m_words.entries.size());
            m_words.entries.push_back(entry);
        }
        return !entry.translations.isEmpty();
    }

    CDictionary &m_dictionary;
    const DictionaryFilter &m_filter;
    const std::function<bool(int)> &m_goesOn;
    DictionaryWords m_words;
    int m_lookedUp = 0;
    QSet<QString> m_texts; // Looked up already.
    QSet<qint64> m_articles; // Likewise.
    QHash<QString, size_t> m_places; // Of headwords among the entries.
};

}

DictionaryWords LookUpWords(
    CDictionary &dictionary, const DictionaryFilter &filter, const std::function<bool(int entries)> &goesOn)
{
    return CWordLookUp(dictionary, filter, goesOn).TakeAll();
}
