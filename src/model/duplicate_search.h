// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

class CWordList;

/// Two entries that share an alternative in one language; `entry` comes before `other`.
struct DuplicatePair
{
    int language = 0;
    int entry = 0;
    int other = 0;
    auto operator<=>(const DuplicatePair &) const = default;
};

/// An index of the alternatives of a list, for finding entries that share one: the stored alternatives with
/// their comments, letter case counting, empty ones never shared, notes not considered. Refers to the texts of
/// the list, which must outlive it unchanged.
class CDuplicateSearch
{
public:
    explicit CDuplicateSearch(const CWordList &list);

    /// The first pair at or after `from` in the order language, entry, other entry; after the last pair comes
    /// the first again. Nothing when there is none at all. `from` need not be a pair.
    std::optional<DuplicatePair> FindNext(const DuplicatePair &from = {}) const;

    /// Calls `join(first, later)` with neighbouring entries of every group that shares an alternative.
    template<class Join>
    void ForEachShared(Join join) const
    {
        for (const Language &language : m_languages) {
            for (size_t word = 0; word + 1 < language.firstUse.size(); ++word) {
                for (int use = language.firstUse[word] + 1; use < language.firstUse[word + 1]; ++use) {
                    join(language.users[size_t(use) - 1], language.users[size_t(use)]);
                }
            }
        }
    }

private:
    /// The distinct alternatives of one language are numbered. Entry e holds words[firstWord[e]] up to but not
    /// including words[firstWord[e + 1]]; word w is used by the ascending users[firstUse[w]] up to firstUse[w +
    /// 1].
    struct Language
    {
        std::vector<int> words;
        std::vector<int> firstWord;
        std::vector<int> users;
        std::vector<int> firstUse;
    };
    /// The lowest entry at or after `other`, and after `entry`, that shares a word with `entry`; -1 without
    /// one.
    static int NextPartner(const Language &language, int entry, int other);

    std::array<Language, 2> m_languages;
    int m_count;
};
