// SPDX-License-Identifier: MIT
#include "model/word_list.h"

#include "model/duplicate_search.h"
#include "model/term_syntax.h"

#include <QSet>

#include <algorithm>
#include <bit>
#include <map>
#include <numeric>

namespace {

/// The runs of one length that occur in a growing text, by their rolling hashes.
class CRunIndex
{
public:
    explicit CRunIndex(qsizetype length) : m_length(length)
    {
        for (qsizetype i = 1; i < length; ++i) {
            m_leading *= Base;
        }
    }

    /// Takes in what was added to `text` since the last call.
    void Update(QStringView text)
    {
        for (; m_position < text.size(); ++m_position) {
            if (m_position >= m_length) {
                m_hash -= m_leading * text[m_position - m_length].unicode();
            }
            m_hash = m_hash * Base + text[m_position].unicode();
            if (m_position + 1 >= m_length) {
                m_runs.insert(m_hash);
            }
        }
    }
    bool Contains(QStringView run) const
    {
        quint64 hash = 0;
        for (const QChar unit : run) {
            hash = hash * Base + unit.unicode();
        }
        return m_runs.contains(hash);
    }

private:
    static constexpr quint64 Base = 0x9E3779B97F4A7C15; // Odd and without a pattern.

    qsizetype m_length;
    quint64 m_leading = 1; // What the first unit of a run is multiplied by.
    quint64 m_hash = 0;
    qsizetype m_position = 0;
    QSet<quint64> m_runs;
};

/// Collects notes into one, leaving out what it already contains.
class CNoteCollector
{
public:
    void Add(const QString &note)
    {
        if (note.isEmpty() || Contains(note)) {
            return;
        }
        if (!m_joined.isEmpty()) {
            m_joined += u"; ";
        }
        m_joined += note;
    }
    const QString &Joined() const { return m_joined; }

private:
    /// A long collection is looked through only for notes whose beginning and end, which together are all of
    /// it, both occur in it. So joining the notes of a hundred thousand entries doesn't read the collection as
    /// many times.
    bool Contains(const QString &note)
    {
        if (m_joined.size() >= 4096) {
            const qsizetype length = qsizetype(std::bit_floor(size_t(note.size())));
            CRunIndex &index = m_runs.try_emplace(length, length).first->second;
            index.Update(m_joined);
            if (!index.Contains(QStringView(note).first(length))
                || !index.Contains(QStringView(note).last(length))) {
                return false;
            }
        }
        return m_joined.contains(note);
    }

    QString m_joined;
    std::map<qsizetype, CRunIndex> m_runs;
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
