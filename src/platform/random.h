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

/// A number from 0 to `count` - 1, each as likely as any other; `count` must be positive. Draws are joined
/// where one is not enough.
inline qint64 DrawBelow(CRandom &random, qint64 count)
{
    for (;;) {
        qint64 drawn = 0;
        qint64 range = 1;
        while (range < count) {
            drawn = drawn << 15 | random.Next();
            range <<= 15;
        }
        // What remains above the largest multiple would make the first numbers likelier.
        if (drawn < range - range % count) {
            return drawn % count;
        }
    }
}

/// Shuffles a random-access sequence in place; every order is equally likely.
template<class Sequence>
void ShuffleEvenly(Sequence &sequence, CRandom &random)
{
    using std::swap;
    for (qint64 i = qint64(sequence.size()) - 1; i > 0; --i) {
        swap(sequence[size_t(i)], sequence[size_t(DrawBelow(random, i + 1))]);
    }
}

/// Shuffles a random-access sequence in place so that each element changes places with an earlier one. Many
/// orders are never reached: not for what must be fair.
template<class Sequence>
void ShuffleCyclically(Sequence &sequence, CRandom &random)
{
    using std::swap;
    const quint64 count = quint64(sequence.size());
    if (count == 0) {
        return;
    }
    swap(sequence[0], sequence[size_t(quint64(random.Next()) % count)]);
    // Kept: the remainder is taken modulo i, not i + 1.
    for (quint64 i = 1; i < count; ++i) {
        quint64 drawn = quint64(random.Next());
        for (quint64 range = CRandom::Maximum; range < i; range = range << 15 | CRandom::Maximum) {
            drawn = drawn << 15 | CRandom::Maximum;
        }
        swap(sequence[size_t(i)], sequence[size_t(drawn % i)]);
    }
}
