// SPDX-License-Identifier: MIT
#include "dictionaries/article.h"
#include "dictionaries/dictionary_words.h"
#include "dictionaries/installed_dictionaries.h"
#include "platform/language_names.h"
#include "support/dictionary_files.h"

#include <zlib.h>

#include <tuple>

namespace {

void AppendNumber(QByteArray &bytes, int number)
{
    bytes.append(char(number % 256)).append(char(number / 256));
}

QByteArray Compressed(QByteArray text, int pieceSize)
{
    QByteArray pieces;
    QByteArray sizes;
    z_stream stream = {};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
    for (qsizetype start = 0; start < text.size(); start += pieceSize) {
        QByteArray piece(2 * pieceSize + 100, Qt::Uninitialized);
        stream.next_in = reinterpret_cast<Bytef *>(text.data() + start);
        stream.avail_in = uInt(std::min<qsizetype>(pieceSize, text.size() - start));
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = uInt(piece.size());
        deflate(&stream, Z_FULL_FLUSH);
        piece.chop(stream.avail_out);
        AppendNumber(sizes, int(piece.size()));
        pieces += piece;
    }
    deflateEnd(&stream);
    QByteArray field;
    AppendNumber(field, 1);
    AppendNumber(field, pieceSize);
    AppendNumber(field, int(sizes.size() / 2));
    field += sizes;
    QByteArray extra = "XX"_ba;
    AppendNumber(extra, 3);
    extra += "abcRA";
    AppendNumber(extra, int(field.size()));
    extra += field;
    QByteArray file("\x1F\x8B\x08\x0C\0\0\0\0\0\3", 10);
    AppendNumber(file, int(extra.size()));
    return file + extra + QByteArray("name.dict\0", 10) + pieces;
}

class CDictionaryFiles
{
public:
    explicit CDictionaryFiles(const QList<Article> &articles, int pieceSize = 0)
    {
        std::tie(index, text) = DictionaryBytes(articles);
        if (pieceSize > 0) {
            text = Compressed(text, pieceSize);
            suffix = u".dict.dz"_s;
        }
    }
    bool OpenIn(CDictionary &dictionary)
    {
        const QString base = m_folder.filePath(u"d"_s);
        return dictionary.Open(WriteFile(base + u".index"_s, index), WriteFile(base + suffix, text));
    }

    QByteArray index;
    QByteArray text;
    QString suffix = u".dict"_s;

private:
    QTemporaryDir m_folder;
};

const QList<Article> Animals = {{"00databaseshort", "00-database-short\n An animal dictionary\n"},
    {"horse", "Horse /hɔːs/ <n>\n1. häst, hingst\n2. bock\n"},
    {"horse", "horse /hɔːs/ <v>\n rida [ngt], häst\n"}, {"horsefly", "horse-fly /ˈhɔːsflaɪ/\nbroms (insekt)\n"},
    {"ox", "ox\n"}, {"österut", "österut\neastwards\n"}};

/// The entries, behind them the texts that were not found, and dots where there is more.
QString Described(const DictionaryWords &words)
{
    QStringList parts;
    for (const DictionaryEntry &entry : words.entries) {
        parts.append(entry.headword + u'=' + entry.translations.join(u'/'));
    }
    for (const QString &text : words.notFound) {
        parts.append(u'-' + text);
    }
    return parts.join(u' ') + (words.hasMore ? u" ..."_s : QString());
}

}

class DictionaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void articles()
    {
        const QByteArray article = "ab /ˈap/ ([+ dat]) <prep>\n"
                                   " [adm.] from <prep>, as from/of <prep> [formal]\n"
                                   "      \"ab dem Jahr 1990\"  - as from 1990, as of 1990\n"
                                   "   Synonyms: {Einrichtung}, {Institution}\n\n see: {ab 1990}\n\n"
                                   "         Note: zeitlich\n2. ex;  From, from\n3.   Note: räumlich\n";
        QCOMPARE(TranslationsIn(article), QStringList({u"from"_s, u"as from/of"_s, u"ex"_s, u"From"_s}));
        QCOMPARE(HeadwordOf(article), u"ab"_s);
        QVERIFY(TranslationsIn("").isEmpty() && TranslationsIn("only a headword").isEmpty());
        QVERIFY(TranslationsIn("a\n" + QByteArray("b,").repeated(20000)).size() <= 30);
    }

    void lookedUp()
    {
        for (const int pieceSize : {0, 7, 60000}) { // Plain, articles cut in pieces, one piece.
            CDictionaryFiles files(Animals, pieceSize);
            CDictionary dictionary;
            QVERIFY(files.OpenIn(dictionary));
            QCOMPARE(dictionary.Translate(u"HORSE [animal] * Österut"_s),
                QStringList({u"häst"_s, u"hingst"_s, u"bock"_s, u"rida"_s, u"eastwards"_s}));
            QCOMPARE(
                dictionary.Translate(u"horse"_s), QStringList({u"rida"_s, u"häst"_s, u"hingst"_s, u"bock"_s}));
            QCOMPARE(dictionary.Translate(u"a horse-fly"_s), QStringList(u"broms"_s));
            QVERIFY(dictionary.Translate(u"hors"_s).isEmpty() && dictionary.Translate(u"ox"_s).isEmpty());
            QVERIFY(dictionary.Translate({}).isEmpty() && dictionary.Translate(u"zz"_s).isEmpty());
            const DictionaryWords words =
                LookUpWords(dictionary, {.texts = {u"hor"_s, u"o"_s}, .match = HeadwordMatch::Beginning});
            QCOMPARE(Described(words), u"Horse=häst/hingst/bock horse=rida/häst horse-fly=broms -o"_s);
        }
    }

    void words()
    {
        using enum HeadwordMatch;
        // One headword has two articles with another between them, and one article two headwords.
        CDictionaryFiles files({{"00databaseshort", "00-database-short\n o\n"}, {"colour", "colour\nfärg\n"},
            {"horse", "horse\nhäst\n"}, {"horse", "Horse\nHäst\n"}, {"horse", "horse\nrida\n"}, {"ox", "ox\n"},
            {"rocking horse", "rocking-horse\ngunghäst\n"}});
        files.index.replace(
            "colour", "color\t" + files.index.split('\n').at(1).split('\t').mid(1).join('\t') + "\ncolour");
        CDictionary dictionary;
        QVERIFY(files.OpenIn(dictionary));
        const std::tuple<DictionaryFilter, QString> rows[] = {
            {{.texts = {u" HORSE  [zoo]"_s, u"cow"_s, u"HORSE [zoo]"_s, u"ox"_s, {}}},
                u"HORSE [zoo]=häst/Häst/rida -cow -ox"_s},
            {{.texts = {u"cow"_s, u"ox"_s, u"horse"_s}, .most = 2}, u"-cow -ox ..."_s},
            {{.texts = {u"h"_s, u"col"_s}, .match = Beginning}, u"horse=häst/rida Horse=Häst colour=färg"_s},
            {{.texts = {u"h"_s}, .match = Beginning, .most = 2}, u"horse=häst Horse=Häst ..."_s},
            {{.texts = {u"00"_s, u"-"_s}, .match = Beginning}, u"-00 --"_s},
            {{.texts = {u"OR"_s, u"g-h"_s}, .match = Part},
                u"colour=färg horse=häst/rida Horse=Häst rocking-horse=gunghäst -g-h"_s},
            {{.texts = {u"r*g?h"_s, u"OX"_s}, .match = Part}, u"rocking-horse=gunghäst -OX"_s},
            {{.texts = {u"?*"_s, u"data"_s}, .match = Part}, u"-?* -data"_s},
            {{.all = true, .most = 2}, u"colour=färg horse=häst ..."_s},
        };
        for (const auto &[filter, expected] : rows) {
            QCOMPARE(Described(LookUpWords(dictionary, filter)), expected);
        }
        int asked = 0;
        LookUpWords(dictionary, {.all = true}, [&asked](int) { return ++asked < 2; });
        QCOMPARE(asked, 2); // And not again.
    }

    void anotherOrder()
    {
        // As sorted without regard to case and hyphens.
        CDictionaryFiles files({{"B", "B\nb\n"}, {"a-b", "a-b\nab\n"}, {"AC", "AC\nac\n"}});
        CDictionary dictionary;
        QVERIFY(files.OpenIn(dictionary));
        QCOMPARE(dictionary.Translate(u"ab*ac*b"_s), QStringList({u"ab"_s, u"ac"_s, u"b"_s}));
        // In the order of its bytes, with capital letters and all characters.
        CDictionaryFiles all({{"C++", "C++\nspråk\n"}, {"c", "c\nton\n"}});
        QVERIFY(all.OpenIn(dictionary));
        QCOMPARE(dictionary.Translate(u"C++"_s), QStringList({u"språk"_s, u"ton"_s}));
    }

    void damagedFiles()
    {
        CDictionary dictionary;
        for (const QByteArray &index : {QByteArray(), QByteArray("no tabulators\n"), QByteArray("a\t!\tB\n"),
                 QByteArray("a\tB\tAAAAAAAAAAAA\n"), QByteArray(100000, 'a'), QByteArray(10, '\0')}) {
            CDictionaryFiles files(Animals);
            files.index = index;
            QVERIFY2(!files.OpenIn(dictionary), index.left(20).constData());
        }
        for (const QByteArray &header : {QByteArray(), QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\3AAAA", 14),
                 QByteArray("\x1F\x8B\x08\4\0\0\0\0\0\3\xFF\xFF", 12),
                 QByteArray("plain text, not compressed")}) {
            CDictionaryFiles files(Animals, 7);
            files.text = header;
            QVERIFY2(!files.OpenIn(dictionary), header.left(20).constData());
        }
        // Lines that say no place are left out, and lines may end as on other systems or say more.
        CDictionaryFiles odd(Animals);
        odd.index.replace("\n", "\r\n")
            .replace("horsefly\t", "\r\nhorsefly\t")
            .replace("ox\t", "x\t!\t?\nox\t");
        odd.index.chop(2);
        odd.index += "\tmore\n\n";
        QVERIFY(odd.OpenIn(dictionary));
        QCOMPARE(dictionary.Translate(u"horse-fly*österut"_s), QStringList({u"broms"_s, u"eastwards"_s}));
        // Places outside the file, and articles as long as a file of terabytes.
        CDictionaryFiles wrong(Animals);
        wrong.index = "horse\t////////\tG\nhorse\tA\t////////\nox\tA\tB\n";
        QVERIFY(wrong.OpenIn(dictionary));
        QVERIFY(dictionary.Translate(u"horse"_s).isEmpty());
        // A piece that would become far more text than a piece is, and one that ends in the middle.
        CDictionaryFiles bomb(Animals, 7);
        const QByteArray zeros = Compressed(QByteArray(60000, '\0'), 60000);
        bomb.text = zeros;
        bomb.text.replace(QByteArray("\x60\xEA"), QByteArray("\x07\0", 2));
        QVERIFY(bomb.OpenIn(dictionary));
        QVERIFY(dictionary.Translate(u"horse"_s).isEmpty());
        CDictionaryFiles cut(Animals, 7);
        cut.text.chop(cut.text.size() / 3);
        QVERIFY(cut.OpenIn(dictionary));
        QVERIFY(dictionary.Translate(u"österut"_s).isEmpty());
    }

    void installed()
    {
        QTemporaryDir folder;
        for (const char *const name : {"freedict-eng-swe.index", "freedict-eng-swe.dict.dz", "swe-eng.index",
                 "swe-eng.dict", "wn.index", "wn.dict", "alone.index", "other/freedict-eng-swe.index",
                 "other/freedict-eng-swe.dict", "other/de-sv.index", "other/de-sv.dict"}) {
            QVERIFY(!WriteFile(folder.filePath(QString::fromLatin1(name)), "x").isEmpty());
        }
        const CLanguageNames languages;
        const auto found = FindDictionaries(
            {folder.path(), folder.filePath(u"none"_s), folder.filePath(u"other"_s)}, languages);
        QStringList names;
        for (const InstalledDictionary &dictionary : found) {
            names.append(dictionary.name + u':' + dictionary.from + u'>' + dictionary.to);
        }
        QCOMPARE(names.join(u' '), u"de-sv:deu>swe freedict-eng-swe:eng>swe swe-eng:swe>eng wn:>"_s);
        QCOMPARE(found.at(1).text, folder.filePath(u"freedict-eng-swe.dict.dz"_s));
        QCOMPARE(DictionaryFor(found, languages, u" Engelska (brittisk) "_s, u"svenska"_s), &found.at(1));
        QCOMPARE(DictionaryFor(found, languages, u"Swedish"_s, u"English"_s), &found.at(2));
        QCOMPARE(DictionaryFor(found, languages, u"Deutsch"_s, u"sv"_s), &found.at(0));
        QCOMPARE(DictionaryFor(found, languages, u"Franska"_s, u"Svenska"_s), nullptr);
        QCOMPARE(DictionaryFor(found, languages, u"Kapitel 3"_s, u""_s), nullptr);
    }
};

QTEST_GUILESS_MAIN(DictionaryTest)
#include "dictionary_test.moc"
