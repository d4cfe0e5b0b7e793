// SPDX-License-Identifier: MIT
#include "dictionaries/dictionary.h"

#include "dictionaries/article.h"
#include "model/term_syntax.h"

#include <algorithm>

namespace {

constexpr int MostArticles = 50;
constexpr qsizetype MostTranslations = 50;
/// Nobody types more into one field.
constexpr qsizetype MostAlternatives = 20;
constexpr qsizetype LongestAlternative = 200;
/// Articles ("a", "the", "ett", "die", "att", "to") are no longer.
constexpr qsizetype LongestArticleWord = 4;

}

void DictionaryEntry::Add(const QStringList &more)
{
    for (const QString &translation : more) {
        if (translations.size() < MostTranslations && !translations.contains(translation)) {
            translations.append(translation);
        }
    }
}

bool CDictionary::Open(const QString &index, const QString &text)
{
    return m_index.Open(index) && m_text.Open(text);
}

void CDictionary::AddTranslations(
    const std::vector<ArticlePlace> &places, const QString &headword, DictionaryEntry &entry)
{
    DictionaryEntry others; // Such as of a noun that is written with a capital letter.
    for (const ArticlePlace &place : places) {
        if (const std::optional<DictionaryEntry> found = EntryAt(place)) {
            (found->headword == headword ? entry : others).Add(found->translations);
        }
    }
    entry.Add(others.translations);
}

QStringList CDictionary::Translate(const QString &term)
{
    DictionaryEntry entry;
    const QStringList alternatives = SplitAlternatives(StripComments(term));
    for (const QString &alternative : alternatives.first(std::min(alternatives.size(), MostAlternatives))) {
        if (alternative.size() > LongestAlternative) {
            continue;
        }
        std::vector<ArticlePlace> places = m_index.Find(alternative, MostArticles);
        const qsizetype blank = alternative.indexOf(u' ');
        QString headword = alternative;
        if (places.empty() && blank > 0 && blank <= LongestArticleWord) {
            headword = alternative.sliced(blank + 1);
            places = m_index.Find(headword, MostArticles);
        }
        AddTranslations(places, headword, entry);
    }
    return entry.translations;
}

std::vector<ArticlePlace> CDictionary::Articles(const QString &text, HeadwordMatch match, int most) const
{
    switch (match) {
    case HeadwordMatch::Whole:
        return m_index.Find(text, most);
    case HeadwordMatch::Beginning:
        return m_index.FindBeginning(text, most);
    case HeadwordMatch::Part:
        break;
    }
    return m_index.FindPart(text, most);
}

std::optional<DictionaryEntry> CDictionary::EntryAt(const ArticlePlace &place)
{
    const std::optional<QByteArray> article = m_text.Read(place.offset, place.length);
    return article ? std::optional(DictionaryEntry{HeadwordOf(*article), TranslationsIn(*article)})
                   : std::nullopt;
}
