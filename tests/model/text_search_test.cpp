// SPDX-License-Identifier: MIT
#include "model/text_search.h"
#include "platform/letters.h"
#include "support/lists.h"

namespace {

/// The rules of a search in one field, by trying every start and every end. Of the places with the lowest start
/// the shortest is the right one.
std::optional<CTextMatcher::Range> SlowFind(QStringView field, const TextSearch &search)
{
    if (search.text.isEmpty()) {
        return CTextMatcher::Range{};
    }
    const auto fold = [&](QChar unit) {
        return search.matchCase ? unit.unicode() : CaseFolding()[unit.unicode()];
    };
    const std::function<bool(QStringView, QStringView)> fits = [&](QStringView text,
                                                                   QStringView pattern) -> bool {
        if (pattern.isEmpty()) {
            return text.isEmpty();
        }
        if (search.wildcard && pattern[0] == u'*') {
            return fits(text, pattern.mid(1)) || (!text.isEmpty() && fits(text.mid(1), pattern));
        }
        const bool any = search.wildcard && pattern[0] == u'?';
        return !text.isEmpty() && (any || fold(text[0]) == fold(pattern[0]))
            && fits(text.mid(1), pattern.mid(1));
    };
    const auto boundary = [&](qsizetype beside) {
        return beside < 0 || beside >= field.size() || !IsWordCharacter(field[beside].unicode());
    };
    for (qsizetype start = 0; start <= field.size(); ++start) {
        for (qsizetype end = start; end <= field.size(); ++end) {
            if ((!search.wholeWord || (boundary(start - 1) && boundary(end)))
                && fits(field.mid(start, end - start), search.text)) {
                return CTextMatcher::Range{start, end - start};
            }
        }
    }
    return std::nullopt;
}

}

class TextSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places()
    {
        const struct
        {
            QString field, text;
            QString options; // c match case, w whole word, * wildcards
            int start; // -1: not found
            int length;
        } rows[] = {
            {u"En ÅL"_s, u"ål"_s, {}, 3, 2}, {u"En ÅL ål"_s, u"ål"_s, u"c"_s, 6, 2},
            {u"idé al"_s, u"ide"_s, {}, -1, 0}, // accents count
            {u"hus hustak * hus"_s, u"hus"_s, u"w"_s, 0, 3},
            {u"hustak [hus]"_s, u"hus"_s, u"w"_s, 8, 3}, // a whole word, later in the field
            {u"a1 a"_s, u"a"_s, u"w"_s, 3, 1},
            {u"e\u0301 e"_s, u"e"_s, u"w"_s, 3, 1}, // a combining mark beside
            {u"\U00010400a a"_s, u"a"_s, u"w"_s, 4, 1}, // a letter outside the basic plane beside
            {u"a * b"_s, u"a * b"_s, {}, 0, 5}, // the separator is text
            {u"a*b"_s, u"a?b"_s, {}, -1, 0}, // wildcards off
            {u"xabcbc"_s, u"a*c"_s, u"*"_s, 1, 3}, // the shortest run
            {u"abcd c"_s, u"a*c"_s, u"*w"_s, 0, 6}, // made longer for a whole word
            {u"a\U0001F600b"_s, u"a?b"_s, u"*"_s, 0, 4}, // a surrogate pair is one character
            {u"abc"_s, u"*"_s, u"*"_s, 0, 0}, {u"abc d"_s, u"*"_s, u"*w"_s, 0, 3},
            {u"a\\b"_s, u"\\?"_s, u"*"_s, 1, 2}, // a backslash is no escape
            {u"STRASSE straße x"_s, u"x"_s, {}, 15, 1}, // positions are kept
            {u"a\u212Ax"_s, u"kx"_s, {}, 1, 2}, // three units fold to one
        };
        for (const auto &row : rows) {
            const CTextMatcher matcher({.text = row.text,
                .matchCase = row.options.contains(u'c'),
                .wholeWord = row.options.contains(u'w'),
                .wildcard = row.options.contains(u'*')});
            const auto range = matcher.Find(row.field);
            QCOMPARE(range ? int(range->start) : -1, row.start);
            QCOMPARE(range ? int(range->length) : 0, row.length);
        }
    }

    void agreesWithTheSlowSearch()
    {
        CRandom random(11);
        for (int i = 0; i < 20000; ++i) {
            const QString field = RandomText(random, u"aAbå 1-", 10);
            const TextSearch search = {.text = RandomText(random, i % 2 == 0 ? u"abÅ*? " : u"aAb å", 4),
                .matchCase = random.Next() % 2 == 0,
                .wholeWord = random.Next() % 2 == 0,
                .wildcard = i % 2 == 0};
            QVERIFY2(CTextMatcher(search).Find(field) == SlowFind(field, search),
                qPrintable(u"'%1' in '%2' %3"_s.arg(search.text, field).arg(search.wholeWord)));
        }
    }

    void columnsAndFilters()
    {
        const CWordList list = MakeList("x|ab|ab|1,ab|y||2,z|z|cab");
        using Entries = std::vector<int>;
        QCOMPARE(list.FindAll({.text = u"ab"_s}), (Entries{0, 1, 2}));
        QCOMPARE(list.FindAll({.text = u"ab"_s, .column = 2}), (Entries{0, 2}));
        QCOMPARE(
            list.FindAll({.flag1 = FlagFilter::NotFlagged, .flag2 = FlagFilter::NotFlagged}), (Entries{2}));
        QCOMPARE(list.FindAll({.text = u"ab"_s, .flag1 = FlagFilter::Flagged}), (Entries{0}));
        // The first matching field in the order of the columns, and the place in it.
        QCOMPARE(list.FindNext({.text = u"ab"_s}, NoEntry, true), (TextMatch{0, 1, 0, 1}));
        QCOMPARE(list.FindNext({.text = u"ab"_s, .column = 2}, 0, true), (TextMatch{2, 2, 1, 2}));
        QCOMPARE(list.FindNext({.column = 1, .flag2 = FlagFilter::Flagged}, NoEntry, true),
            (TextMatch{1, 1, 0, -1}));
        // On from a match, either way round; a single one is found again.
        for (const auto &[start, below, above] : {std::array{NoEntry, 0, 2}, {0, 1, 2}, {2, 0, 1}}) {
            QCOMPARE(list.FindNext({.text = u"ab"_s}, start, true).entry, below);
            QCOMPARE(list.FindNext({.text = u"ab"_s}, start, false).entry, above);
            QCOMPARE(list.FindNext({.text = u"y"_s}, start, below == 1).entry, 1);
        }
    }

    void prefixes()
    {
        const CWordList list = MakeList("hund|dog,Dag|day,[d] e|x");
        const QString d = u"d"_s;
        QCOMPARE(list.FindPrefix(d, -1, 0), 0);
        QCOMPARE(list.FindPrefix(d, 0, 0), 1);
        QCOMPARE(list.FindPrefix(d, 0, 2), 1);
        QCOMPARE(list.FindPrefix(u"DO"_s, 1, 1), 0);
        QCOMPARE(list.FindPrefix(u"[D"_s, 0, 0), 2);
        QCOMPARE(list.FindPrefix(u"og"_s, -1, 0), -1);
    }
};

QTEST_APPLESS_MAIN(TextSearchTest)
#include "text_search_test.moc"
