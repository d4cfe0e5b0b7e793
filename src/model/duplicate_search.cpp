// SPDX-License-Identifier: MIT
#include "model/duplicate_search.h"

#include "model/word_list.h"

#include <algorithm>

CDuplicateSearch::CDuplicateSearch(const CWordList &list) : m_count(list.Count())
{
    for (int index = 0; index < CWordEntry::LanguageCount; ++index) {
        Language &language = m_languages[size_t(index)];
        QHash<QString, int> numbers;
        numbers.reserve(m_count);
        language.words.reserve(size_t(m_count));
        language.firstWord.reserve(size_t(m_count) + 1);
        for (int entry = 0; entry < m_count; ++entry) {
            language.firstWord.push_back(int(language.words.size()));
            const CWordEntry &words = list.Entry(entry);
            for (int k = 0; k <= words.AlternativeCount(index); ++k) {
                const QString word = words.GetAlternative(index, k, false);
                if (!word.isEmpty()) {
                    int &number = numbers[word]; // Counted from 1; 0 is a new word.
                    if (number == 0) {
                        number = int(numbers.size());
                    }
                    language.words.push_back(number - 1);
                }
            }
        }
        language.firstWord.push_back(int(language.words.size()));

        language.firstUse.assign(size_t(numbers.size()) + 1, 0);
        for (const int word : language.words) {
            ++language.firstUse[size_t(word) + 1];
        }
        for (size_t word = 1; word < language.firstUse.size(); ++word) {
            language.firstUse[word] += language.firstUse[word - 1];
        }
        language.users.resize(language.words.size());
        std::vector<int> next = language.firstUse;
        for (int entry = 0; entry < m_count; ++entry) {
            for (int i = language.firstWord[size_t(entry)]; i < language.firstWord[size_t(entry) + 1]; ++i) {
                language.users[size_t(next[size_t(language.words[size_t(i)])]++)] = entry;
            }
        }
    }
}

int CDuplicateSearch::NextPartner(const Language &language, int entry, int other)
{
    int partner = -1;
    for (int i = language.firstWord[size_t(entry)]; i < language.firstWord[size_t(entry) + 1]; ++i) {
        const size_t word = size_t(language.words[size_t(i)]);
        const auto begin = language.users.begin() + language.firstUse[word];
        const auto end = language.users.begin() + language.firstUse[word + 1];
        const auto found = end - begin > 1 ? std::lower_bound(begin, end, std::max(other, entry + 1)) : end;
        if (found != end && (partner < 0 || *found < partner)) {
            partner = *found;
        }
    }
    return partner;
}

bool CDuplicateSearch::FindNext(const DuplicatePair &from, DuplicatePair &found) const
{
    const auto search = [&](DuplicatePair at) {
        for (; at.language < CWordEntry::LanguageCount; at = {at.language + 1, 0, 0}) {
            for (; at.entry < m_count; at = {at.language, at.entry + 1, 0}) {
                const int partner = NextPartner(m_languages[size_t(at.language)], at.entry, at.other);
                if (partner >= 0) {
                    found = {at.language, at.entry, partner};
                    return true;
                }
            }
        }
        return false;
    };
    return search({std::max(from.language, 0), std::max(from.entry, 0), from.other}) || search({});
}
