// SPDX-License-Identifier: MIT
#include "generator.h"

#include "model/term_syntax.h"
#include "platform/random.h"

#include <array>

namespace {

constexpr std::array Swedish = {u"hus", u"skog", u"bil", u"mor", u"väg", u"stråk", u"kött", u"får", u"över",
    u"tåg", u"ande", u"het", u"ning", u"lig", u"sam", u"berg", u"ström", u"å", u"kläd", u"mjölk", u"sten",
    u"fjäll", u"spel", u"dag", u"skap", u"kraft", u"bok", u"vind", u"löv", u"häst", u"på", u"under"};
constexpr std::array English = {u"house", u"wood", u"car", u"ship", u"way", u"path", u"meat", u"sheep", u"over",
    u"train", u"ing", u"ness", u"ful", u"less", u"able", u"hill", u"stream", u"er", u"cloth", u"milk", u"stone",
    u"rock", u"game", u"day", u"hood", u"power", u"book", u"wind", u"leaf", u"horse", u"un", u"under"};
constexpr std::array Comments = {
    u"plural", u"vardagligt", u"djur", u"formal", u"noun", u"verb", u"US", u"ålderdomligt"};

class CGenerator
{
public:
    explicit CGenerator(quint32 seed) : m_random(seed) { }

    CWordEntry Entry()
    {
        const QString note = Chance(20)
            ? QStringLiteral("%1 %2 %3").arg(Word(Swedish), Word(Swedish), Word(English))
            : QString();
        return CWordEntry(Term(Swedish), Term(English), note, Chance(10), Chance(10));
    }

private:
    bool Chance(int percent) { return m_random.Next() % 100 < percent; }
    template<size_t Count>
    QString Pick(const std::array<const char16_t *, Count> &parts)
    {
        return QString::fromUtf16(parts[size_t(m_random.Next()) % Count]);
    }
    /// A part and two to four syllables: few words come twice, as in a list that somebody made.
    template<class Parts>
    QString Word(const Parts &parts)
    {
        constexpr QStringView Consonants = u"bdfghjklmnprstv";
        constexpr QStringView Vowels = u"aeiouyåäö";
        QString word = Pick(parts);
        for (int left = 2 + m_random.Next() % 3; left > 0; --left) {
            word += Consonants[m_random.Next() % Consonants.size()];
            word += Vowels[m_random.Next() % Vowels.size()];
        }
        return word;
    }
    template<class Parts>
    QString Term(const Parts &parts)
    {
        QString term = Word(parts);
        if (Chance(15)) {
            term += QStringLiteral(" [") + Pick(Comments) + u']';
        }
        if (Chance(10)) {
            term += AlternativeJoint.toString() + Word(parts);
        }
        return term;
    }

    CRandom m_random;
};

}

CWordList GenerateList(int count, quint32 seed)
{
    CGenerator generator(seed);
    CWordList list;
    list.SetProperties({.language1 = QStringLiteral("Svenska"), .language2 = QStringLiteral("Engelska")});
    for (int i = 0; i < count; ++i) {
        list.Insert(generator.Entry());
    }
    list.SetSaved(true);
    return list;
}
