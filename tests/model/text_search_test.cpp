// SPDX-License-Identifier: MIT
#include "model/text_search.h"
#include "platform/letters.h"
#include "support/lists.h"

#include <QTest>

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
    void places_data();
    void places();
    void agreesWithTheSlowSearch();
    void columnsAndFilters();
    void nextWrapsAndTriesTheStartLast();
    void randomListsAgainstFindAll();
    void prefixes();
};

void TextSearchTest::places_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("options"); // c match case, w whole word, * wildcards
    QTest::addColumn<int>("start"); // -1: not found
    QTest::addColumn<int>("length");
    QTest::newRow("case ignored") << "En ÅL"
                                  << "ål"
                                  << "" << 3 << 2;
    QTest::newRow("case counts") << "En ÅL ål"
                                 << "ål"
                                 << "c" << 6 << 2;
    QTest::newRow("accents count") << "idé al"
                                   << "ide"
                                   << "" << -1 << 0;
    QTest::newRow("whole word tries later places") << "hus hustak * hus"
                                                   << "hus"
                                                   << "w" << 0 << 3;
    QTest::newRow("whole word later in the field") << "hustak [hus]"
                                                   << "hus"
                                                   << "w" << 8 << 3;
    QTest::newRow("digit beside") << "a1 a"
                                  << "a"
                                  << "w" << 3 << 1;
    QTest::newRow("combining mark beside") << "e\u0301 e"
                                           << "e"
                                           << "w" << 3 << 1;
    QTest::newRow("letter outside the basic plane beside") << "\U00010400a a"
                                                           << "a"
                                                           << "w" << 4 << 1;
    QTest::newRow("separator is text") << "a * b"
                                       << "a * b"
                                       << "" << 0 << 5;
    QTest::newRow("wildcards off") << "a*b"
                                   << "a?b"
                                   << "" << -1 << 0;
    QTest::newRow("shortest run") << "xabcbc"
                                  << "a*c"
                                  << "*" << 1 << 3;
    QTest::newRow("whole word lengthens the run") << "abcd c"
                                                  << "a*c"
                                                  << "*w" << 0 << 6;
    QTest::newRow("one character is a surrogate pair") << "a\U0001F600b"
                                                       << "a?b"
                                                       << "*" << 0 << 4;
    QTest::newRow("only a star") << "abc"
                                 << "*"
                                 << "*" << 0 << 0;
    QTest::newRow("star as a whole word") << "abc d"
                                          << "*"
                                          << "*w" << 0 << 3;
    QTest::newRow("backslash is no escape") << "a\\b"
                                            << "\\?"
                                            << "*" << 1 << 2;
    QTest::newRow("sharp s keeps positions") << "STRASSE straße x"
                                             << "x"
                                             << "" << 15 << 1;
}

void TextSearchTest::places()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QFETCH(QString, options);
    QFETCH(int, start);
    QFETCH(int, length);
    const CTextMatcher matcher({.text = text,
        .matchCase = options.contains(u'c'),
        .wholeWord = options.contains(u'w'),
        .wildcard = options.contains(u'*')});
    const auto range = matcher.Find(field);
    QCOMPARE(range ? int(range->start) : -1, start);
    QCOMPARE(range ? int(range->length) : 0, length);
}

void TextSearchTest::agreesWithTheSlowSearch()
{
    CRandom random(11);
    for (int i = 0; i < 20000; ++i) {
        const QString field = RandomText(random, u"aAbå 1-", 10);
        const TextSearch search = {.text = RandomText(random, i % 2 == 0 ? u"abÅ*? " : u"aAb å", 4),
            .matchCase = random.Next() % 2 == 0,
            .wholeWord = random.Next() % 2 == 0,
            .wildcard = i % 2 == 0};
        QVERIFY2(CTextMatcher(search).Find(field) == SlowFind(field, search),
            qPrintable(QStringLiteral("'%1' in '%2' %3").arg(search.text, field).arg(search.wholeWord)));
    }
}

void TextSearchTest::columnsAndFilters()
{
    const CWordList list =
        MakeList({QStringLiteral("x|ab|ab|1"), QStringLiteral("ab|y||2"), QStringLiteral("z|z|cab")});
    using Entries = std::vector<int>;
    QCOMPARE(list.FindAll({.text = QStringLiteral("ab")}), (Entries{0, 1, 2}));
    QCOMPARE(list.FindAll({.text = QStringLiteral("ab"), .column = 2}), (Entries{0, 2}));
    QCOMPARE(list.FindAll({.flag1 = FlagFilter::NotFlagged, .flag2 = FlagFilter::NotFlagged}), (Entries{2}));
    QCOMPARE(list.FindAll({.text = QStringLiteral("ab"), .flag1 = FlagFilter::Flagged}), (Entries{0}));
    // The first matching field in the order of the columns, and the place in it.
    QCOMPARE(list.FindNext({.text = QStringLiteral("ab")}, -1, true), (TextMatch{0, 1, 0, 1}));
    QCOMPARE(list.FindNext({.text = QStringLiteral("ab"), .column = 2}, 0, true), (TextMatch{2, 2, 1, 2}));
    QCOMPARE(list.FindNext({.column = 1, .flag2 = FlagFilter::Flagged}, -1, true), (TextMatch{1, 1, 0, -1}));
}

void TextSearchTest::nextWrapsAndTriesTheStartLast()
{
    const CWordList list =
        MakeList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")});
    const TextSearch a = {.text = QStringLiteral("a")};
    const TextSearch b = {.text = QStringLiteral("b")};
    QCOMPARE(list.FindNext(a, -1, true).entry, 0);
    QCOMPARE(list.FindNext(a, 0, true).entry, 2);
    QCOMPARE(list.FindNext(a, 2, true).entry, 0);
    QCOMPARE(list.FindNext(b, -1, false).entry, 3);
    QCOMPARE(list.FindNext(b, 1, false).entry, 3);
    QCOMPARE(list.FindNext({.text = QStringLiteral("c")}, 2, true).entry, -1);
    const CWordList one = MakeList({QStringLiteral("x"), QStringLiteral("a"), QStringLiteral("x")});
    QCOMPARE(one.FindNext(a, 1, true).entry, 1);
    QCOMPARE(one.FindNext(a, 1, false).entry, 1);
    QCOMPARE(CWordList().FindNext(a, -1, true).entry, -1);
}

void TextSearchTest::randomListsAgainstFindAll()
{
    CRandom random(2);
    for (int round = 0; round < 300; ++round) {
        QStringList entries;
        for (int i = random.Next() % 6; i >= 0; --i) {
            entries.append(RandomText(random, u"ab", 2) + u'|' + RandomText(random, u"ab", 2));
        }
        const CWordList list = MakeList(entries);
        const TextSearch search = {.text = RandomText(random, u"ab", 2), .column = random.Next() % 3 - 1};
        const std::vector<int> all = list.FindAll(search);
        // Walking on from a match visits all matches, ascending or descending.
        for (const bool downward : {true, false}) {
            std::vector<int> walked;
            int position = -1;
            for (size_t i = 0; i < all.size(); ++i) {
                position = list.FindNext(search, position, downward).entry;
                walked.push_back(position);
            }
            if (!downward) {
                std::ranges::reverse(walked);
            }
            QCOMPARE(walked, all);
        }
    }
}

void TextSearchTest::prefixes()
{
    const CWordList list =
        MakeList({QStringLiteral("hund|dog"), QStringLiteral("Dag|day"), QStringLiteral("[d] e|x")});
    const QString d = QStringLiteral("d");
    QCOMPARE(list.FindPrefix(d, -1, 0), 0);
    QCOMPARE(list.FindPrefix(d, 0, 0), 1);
    QCOMPARE(list.FindPrefix(d, 0, 2), 1);
    QCOMPARE(list.FindPrefix(QStringLiteral("DO"), 1, 1), 0);
    QCOMPARE(list.FindPrefix(QStringLiteral("[D"), 0, 0), 2);
    QCOMPARE(list.FindPrefix(QStringLiteral("og"), -1, 0), -1);
}

QTEST_APPLESS_MAIN(TextSearchTest)
#include "text_search_test.moc"
