// SPDX-License-Identifier: MIT
#include "platform/random.h"
#include "support/test.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>

class RandomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void evenShuffle()
    {
        std::map<std::array<int, 4>, int> orders;
        CRandom random(1);
        constexpr int Shuffles = 24000;
        for (int i = 0; i < Shuffles; ++i) {
            std::array<int, 4> numbers = {0, 1, 2, 3};
            ShuffleEvenly(numbers, random);
            ++orders[numbers];
        }
        QCOMPARE(orders.size(), size_t(24));
        for (const auto &[order, count] : orders) {
            QVERIFY2(count > 850 && count < 1150, qPrintable(QString::number(count)));
        }
    }

    void manyPlaces()
    {
        constexpr int Count = 100000;
        std::vector<int> numbers(Count);
        std::iota(numbers.begin(), numbers.end(), 0);
        CRandom random(1);
        ShuffleEvenly(numbers, random);
        QCOMPARE(std::set<int>(numbers.begin(), numbers.end()).size(), size_t(Count));
        // Each quarter comes from all quarters.
        for (int place = 0; place < Count; place += Count / 4) {
            for (int first = 0; first < Count; first += Count / 4) {
                const auto share = std::count_if(numbers.begin() + place, numbers.begin() + place + Count / 4,
                    [first](int number) { return number >= first && number < first + Count / 4; });
                QVERIFY2(share > 6000 && share < 6500, qPrintable(QString::number(share)));
            }
        }
    }

    void cyclicShuffle()
    {
        std::vector<int> numbers(40000);
        std::iota(numbers.begin(), numbers.end(), 0);
        CRandom random(1);
        ShuffleCyclically(numbers, random);
        QVERIFY(!std::ranges::is_sorted(numbers));
        // Beyond 32767 elements the draws are widened, so that late elements reach late places too.
        QVERIFY(std::any_of(numbers.begin() + 35000, numbers.end(), [](int number) { return number < 20000; }));
        QCOMPARE(std::set<int>(numbers.begin(), numbers.end()).size(), numbers.size());
    }
};

QTEST_APPLESS_MAIN(RandomTest)
#include "random_test.moc"
