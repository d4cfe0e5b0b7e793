// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include "model/duplicate_search.h"
#include "model/term_syntax.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace {

/// Collects notes into one, leaving out the pieces that it already has.
class CNoteCollector
{
public:
    void Add(const QString &note)
    {
        const bool isFirst = m_joined.isEmpty();
        for (const QString &piece : note.split(QLatin1StringView(Joint))) {
            if (m_known.contains(piece)) {
                continue;
            }
            m_known.insert(piece);
            if (!isFirst) {
                m_joined += QLatin1StringView(Joint) + piece;
            }
        }
        if (isFirst) {
            m_joined = note; // As it is, with what it repeats.
        }
    }
    const QString &Joined() const { return m_joined; }

private:
    static constexpr auto Joint = "; ";

    QString m_joined;
    QSet<QString> m_known = {QString()};
};

/// Disjoint groups of entries; the lowest entry of a group is its root.
class CGroups
{
public:
    explicit CGroups(int count) : m_parent(size_t(count)) { std::iota(m_parent.begin(), m_parent.end(), 0); }

    int Root(int entry)
    {
        while (Parent(entry) != entry) {
            Parent(entry) = Parent(Parent(entry));
            entry = Parent(entry);
        }
        return entry;
    }
    void Join(int a, int b)
    {
        const auto [low, high] = std::minmax({Root(a), Root(b)});
        Parent(high) = low;
    }

private:
    int &Parent(int entry) { return m_parent[size_t(entry)]; }

    std::vector<int> m_parent;
};

}

void CWordList::MergeGroup(Selection group)
{
    std::array<QStringList, CWordEntry::LanguageCount> alternatives;
    CNoteCollector notes;
    std::array<bool, CWordEntry::LanguageCount> flags = {true, true};
    std::array<QSet<QString>, CWordEntry::LanguageCount> known;
    for (const int index : group) {
        const CWordEntry &entry = Entry(index);
        const bool isFirst = index == group.front(); // The same entry may stand at several places.
        for (size_t language = 0; language < alternatives.size(); ++language) {
            for (const QString &alternative : entry.Alternatives(int(language))) {
                // The first entry keeps its alternatives as they are, repeated ones too.
                const bool isKnown = known[language].contains(alternative);
                if (isFirst || !isKnown) {
                    known[language].insert(alternative);
                    alternatives[language].append(alternative);
                }
            }
            flags[language] = flags[language] && entry.GetFlag(int(language));
        }
        notes.Add(entry.GetNote());
    }
    CWordEntry &merged = m_entries.Mutable(group.front());
    for (size_t language = 0; language < alternatives.size(); ++language) {
        merged.SetTerm(alternatives[language].join(AlternativeJoint), int(language));
        merged.SetFlag(int(language), flags[language]);
    }
    merged.SetNote(notes.Joined());
}

int CWordList::MergeEntries(Selection selection)
{
    std::vector<int> group;
    std::vector<bool> isKnown(size_t(Count()), false);
    for (const int index : selection) {
        if (m_entries.IsIndex(index) && !isKnown[size_t(index)]) {
            isKnown[size_t(index)] = true;
            group.push_back(index);
        }
    }
    if (group.size() < 2) {
        return 0;
    }
    MergeGroup(group);
    DeleteEntries(Selection(group).subspan(1));
    return int(group.size()) - 1;
}

int CWordList::MergeAll()
{
    CGroups groups(Count());
    CDuplicateSearch(*this).ForEachShared([&](int a, int b) { groups.Join(a, b); });

    // Members of groups of two and more, each group's together and ascending.
    std::vector<std::pair<int, int>> members;
    std::vector<bool> isRoot(size_t(Count()), false);
    for (int index = 0; index < Count(); ++index) {
        const int root = groups.Root(index);
        if (root != index) {
            members.emplace_back(root, index);
            isRoot[size_t(root)] = true;
        }
    }
    if (members.empty()) {
        return 0;
    }
    std::vector<int> disappearing;
    disappearing.reserve(members.size());
    for (const auto &member : members) {
        disappearing.push_back(member.second);
    }
    for (int index = 0; index < Count(); ++index) {
        if (isRoot[size_t(index)]) {
            members.emplace_back(index, index);
        }
    }
    std::ranges::sort(members);
    std::vector<int> group;
    for (auto member = members.begin(); member != members.end();) {
        group.clear();
        const int root = member->first;
        for (; member != members.end() && member->first == root; ++member) {
            group.push_back(member->second);
        }
        MergeGroup(group);
    }
    DeleteEntries(disappearing);
    return int(disappearing.size());
}
