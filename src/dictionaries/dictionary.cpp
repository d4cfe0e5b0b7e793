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

void AddNew(const QStringList &more, QStringList &translations)
{
    for (const QString &translation : more) {
        if (translations.size() < MostTranslations && !translations.contains(translation)) {
            translations.append(translation);
        }
    }
}

}

bool CDictionary::Open(const QString &index, const QString &text)
{
    return m_index.Open(index) && m_text.Open(text);
}

void CDictionary::AddTranslations(
    const std::vector<ArticlePlace> &places, const QString &headword, QStringList &translations)
{
    QStringList ofOthers; // Such as of a noun that is written with a capital letter.
    for (const ArticlePlace &place : places) {
        if (const std::optional<QByteArray> article = m_text.Read(place.offset, place.length)) {
            AddNew(TranslationsIn(*article), HeadwordOf(*article) == headword ? translations : ofOthers);
        }
    }
    AddNew(ofOthers, translations);
}

QStringList CDictionary::Translate(const QString &term)
{
    QStringList translations;
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
        AddTranslations(places, headword, translations);
    }
    return translations;
}

std::vector<DictionaryEntry> CDictionary::TranslateBeginning(const QString &start, int most)
{
    return EntriesAt(m_index.FindBeginning(start, most));
}

std::vector<DictionaryEntry> CDictionary::TranslateAll(int most)
{
    return EntriesAt(m_index.All(most));
}

std::vector<DictionaryEntry> CDictionary::EntriesAt(const std::vector<ArticlePlace> &places)
{
    std::vector<DictionaryEntry> entries;
    for (const ArticlePlace &place : places) {
        const std::optional<QByteArray> article = m_text.Read(place.offset, place.length);
        if (!article) {
            continue;
        }
        const QString headword = HeadwordOf(*article);
        if (entries.empty() || entries.back().headword != headword) {
            entries.push_back({headword, {}});
        }
        AddNew(TranslationsIn(*article), entries.back().translations);
    }
    return entries;
}
