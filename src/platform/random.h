// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <random>
#include <utility>

/// The program's source of chance: whole numbers from 0 to Maximum, evenly spread. The same seed gives the same
/// numbers. Handed to whatever draws.
class CRandom
{
public:
    static constexpr int Maximum = 32767;

    explicit CRandom(quint32 seed) : m_engine(seed) { }

    int Next() { return int(m_engine() >> 17); }

private:
    std::mt19937 m_engine;
};

/// Shuffles a random-access sequence in place.
template<class Sequence>
void Shuffle(Sequence &sequence, CRandom &random)
{
    using std::swap;
    const quint64 count = quint64(sequence.size());
    if (count == 0) {
        return;
    }
    swap(sequence[0], sequence[qsizetype(quint64(random.Next()) % count)]);
    // Kept: the remainder is taken modulo i, not i + 1, so each element here changes places with an earlier
    // one.
    for (quint64 i = 1; i < count; ++i) {
        quint64 drawn = quint64(random.Next());
        for (quint64 range = CRandom::Maximum; range < i; range = range << 15 | CRandom::Maximum) {
            drawn = drawn << 15 | CRandom::Maximum;
        }
        swap(sequence[qsizetype(i)], sequence[qsizetype(drawn % i)]);
    }
}
