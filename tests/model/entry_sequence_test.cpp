// SPDX-License-Identifier: MIT
#include "model/entry_sequence.h"
#include "platform/random.h"
#include "support/test.h"

#include <numeric>
#include <thread>

namespace {

using Plain = std::vector<int>;

CWordEntry Entry(int number)
{
    return CWordEntry(QString::number(number));
}

Plain Numbers(const CEntrySequence &sequence)
{
    Plain numbers;
    for (int index = 0; index < sequence.Count(); ++index) {
        numbers.push_back(sequence.At(index).GetText(0).toInt());
    }
    return numbers;
}

/// One random change of both, of the kinds that commands make.
void Change(CEntrySequence &sequence, Plain &plain, CRandom &random, int number)
{
    const int count = int(plain.size());
    const int place = count == 0 ? 0 : random.Next() % count;
    switch (random.Next() % 8) {
    case 0: // Many in one place, so that blocks are split.
        for (int i = 0; i < 700; ++i) {
            sequence.Insert(place, Entry(number + i));
            plain.insert(plain.begin() + place, number + i);
        }
        break;
    case 1:
        for (int i = 0; i < 300; ++i) {
            sequence.Append(Entry(number + i));
            plain.push_back(number + i);
        }
        break;
    case 2: { // A sequence of any length, into this one or behind it; also this one into itself.
        const auto position = plain.begin() + (random.Next() % 4 == 0 ? count : place);
        if (random.Next() % 4 == 0 && count < 3000) {
            const Plain inserted = plain;
            sequence.Insert(int(position - plain.begin()), sequence);
            plain.insert(position, inserted.begin(), inserted.end());
            break;
        }
        CEntrySequence other;
        Plain inserted(size_t(random.Next() % 2000));
        std::iota(inserted.begin(), inserted.end(), number);
        for (const int entry : inserted) {
            other.Append(Entry(entry));
        }
        sequence.Insert(int(position - plain.begin()), other);
        plain.insert(position, inserted.begin(), inserted.end());
        break;
    }
    case 3: { // A range, or a thinned-out part.
        Plain removed;
        for (int index = place, step = 1 + random.Next() % 3; index < count && removed.size() < 600;
             index += step) {
            removed.push_back(index);
        }
        sequence.Remove(removed);
        for (auto index = removed.rbegin(); index != removed.rend(); ++index) {
            plain.erase(plain.begin() + *index);
        }
        break;
    }
    case 4: {
        Plain order(plain.size());
        std::iota(order.begin(), order.end(), 0);
        ShuffleEvenly(order, random);
        Plain reordered;
        for (const int index : order) {
            reordered.push_back(plain[size_t(index)]);
        }
        sequence.Reorder(order);
        plain = reordered;
        break;
    }
    default:
        if (count > 0) {
            const int other = random.Next() % count;
            sequence.Swap(place, other);
            std::swap(plain[size_t(place)], plain[size_t(other)]);
            sequence.Mutable(place).SetTerm(QString::number(-number), 0);
            plain[size_t(place)] = -number;
        }
    }
}

}

class EntrySequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAPlainVector()
    {
        for (quint32 seed = 0; seed < 12; ++seed) {
            CRandom random(seed);
            CEntrySequence sequence;
            Plain plain;
            std::vector<std::pair<CEntrySequence, Plain>> copies;
            for (int number = 1000; number < 60000; number += 1000) {
                copies.emplace_back(sequence, plain);
                Change(sequence, plain, random, number);
                QCOMPARE(Numbers(sequence), plain);
                if (random.Next() % 4 == 0) { // Go on from an older copy, as after undo.
                    std::tie(sequence, plain) = copies[size_t(random.Next()) % copies.size()];
                }
            }
            // No change of one copy shows in another.
            for (const auto &[copy, expected] : copies) {
                QCOMPARE(Numbers(copy), expected);
            }
        }
    }

    void copiesInDifferentThreads()
    {
        CEntrySequence sequence;
        for (int number = 0; number < 1500; ++number) {
            sequence.Append(Entry(number));
        }
        for (int round = 0; round < 50; ++round) {
            const Plain before = Numbers(sequence);
            Plain read;
            std::thread reader([copy = sequence, &read] { read = Numbers(copy); });
            for (int index = 0; index < 1500; index += 7) {
                sequence.Mutable(index).SetTerm(QString::number(round), 0);
                sequence.Swap(index, 1499 - index);
            }
            reader.join();
            QCOMPARE(read, before);
        }
    }
};

QTEST_APPLESS_MAIN(EntrySequenceTest)
#include "entry_sequence_test.moc"
