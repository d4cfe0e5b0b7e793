// SPDX-License-Identifier: MIT
#include "model/duplicate_search.h"

#include "model/word_list.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>

namespace {

/// Gives every text the number of its word, equal texts being one word. Words are counted from 0 in the order
/// in which they first come; their number is returned.
int NumberWords(const std::vector<QStringView> &texts, std::vector<int> &numbers)
{
    struct Slot
    {
        quint32 hash = 0;
        int word = -1;
    };
    std::vector<Slot> slots(std::bit_ceil(2 * texts.size() + 1));
    std::vector<QStringView> words;
    words.reserve(texts.size());
    numbers.reserve(texts.size());
    const size_t seed = QHashSeed::globalSeed();
    for (const QStringView text : texts) {
        const size_t hash = qHash(text, seed);
        const auto isOther = [&](const Slot &slot) {
            return slot.hash != quint32(hash) || words[size_t(slot.word)] != text;
        };
        size_t place = hash & (slots.size() - 1);
        while (slots[place].word >= 0 && isOther(slots[place])) {
            place = (place + 1) & (slots.size() - 1);
        }
        if (slots[place].word < 0) {
            slots[place] = {quint32(hash), int(words.size())};
            words.push_back(text);
        }
        numbers.push_back(slots[place].word);
    }
    return int(words.size());
}

}

CDuplicateSearch::CDuplicateSearch(const CWordList &list) : m_count(list.Count())
{
    for (int index = 0; index < CWordEntry::LanguageCount; ++index) {
        Language &language = m_languages[size_t(index)];
        std::vector<QStringView> texts;
        texts.reserve(size_t(m_count));
        language.firstWord.reserve(size_t(m_count) + 1);
        list.ForEach([&](int, const CWordEntry &entry) {
            language.firstWord.push_back(int(texts.size()));
            const auto alternatives = entry.Alternatives(index);
            texts.insert(texts.end(), alternatives.begin(), alternatives.end());
        });
        language.firstWord.push_back(int(texts.size()));

        language.firstUse.assign(size_t(NumberWords(texts, language.words)) + 1, 0);
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

std::optional<DuplicatePair> CDuplicateSearch::FindNext(const DuplicatePair &from) const
{
    const auto search = [&](DuplicatePair at) -> std::optional<DuplicatePair> {
        for (; at.language < CWordEntry::LanguageCount; at = {at.language + 1, 0, 0}) {
            for (; at.entry < m_count; at = {at.language, at.entry + 1, 0}) {
                const int partner = NextPartner(m_languages[size_t(at.language)], at.entry, at.other);
                if (partner >= 0) {
                    return DuplicatePair{at.language, at.entry, partner};
                }
            }
        }
        return {};
    };
    const auto found = search({std::max(from.language, 0), std::max(from.entry, 0), from.other});
    return found ? found : search({});
}
