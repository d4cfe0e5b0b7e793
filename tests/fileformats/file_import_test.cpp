// SPDX-License-Identifier: MIT
#include "fileformats/file_import.h"

#include "support/list_files.h"

#include <QTest>

namespace {

/// A list in Swedish and English.
CWordList Target(const char *entries = "a|A,b|B")
{
    CWordList list = MakeList(entries);
    list.SetProperties({.language1 = QStringLiteral("Svenska"), .language2 = QStringLiteral("Engelska")});
    return list;
}

/// The result, the entries imported and ignored, and the list.
QString Import(CFileImport &import, const QString &path)
{
    const KeepGoing keepGoing = true;
    const FileImport outcome = import.ImportFile(path, keepGoing);
    return QStringLiteral("%1 %2 %3: ")
               .arg(int(outcome.result))
               .arg(outcome.importedEntries)
               .arg(outcome.ignoredEntries)
        + Joined(import.Target());
}

}

class FileImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position();
    void languages_data();
    void languages();
    void filters_data();
    void filters();
    void duplicatesAsByTheObviousLoop();
    void badFiles();
    void summaries();
};

void FileImportTest::position()
{
    const CListFiles files;
    const QString file =
        files.AddList(QStringLiteral("x.gls"), {QStringLiteral("c|C|n|12"), QStringLiteral("d|D")});
    for (const auto &[position, first, second] :
        {std::tuple(0, "c|C|n|12,d|D,a|A,b|B", "c|C|n|12,d|D,c|C|n|12,d|D,a|A,b|B"),
            {1, "a|A,c|C|n|12,d|D,b|B", "a|A,c|C|n|12,d|D,c|C|n|12,d|D,b|B"},
            {9, "a|A,b|B,c|C|n|12,d|D", "a|A,b|B,c|C|n|12,d|D,c|C|n|12,d|D"},
            {-1, "a|A,b|B,c|C|n|12,d|D", "a|A,b|B,c|C|n|12,d|D,c|C|n|12,d|D"}}) {
        CFileImport import(
            Target(), position, {.ignoreDuplicates = true}); // Without the filter it has no effect.
        QCOMPARE(Import(import, file), QStringLiteral("0 2 0: ") + QLatin1StringView(first));
        QCOMPARE(Import(import, file), QStringLiteral("0 2 0: ") + QLatin1StringView(second));
    }
}

void FileImportTest::languages_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("crossed");
    QTest::addColumn<bool>("hasOne");
    QTest::addColumn<bool>("hasBoth");
    const auto row = [](const char *name, const char *file, bool crossed, bool hasOne, bool hasBoth) {
        QTest::newRow(name) << QString::fromUtf8(file) << crossed << hasOne << hasBoth;
    };
    row("the same, letter case ignored", "svenska|ENGELSKA", false, true, true);
    row("the other way round", "Engelska|Svenska", true, true, true);
    row("one of them", "Svenska|Tyska", false, true, false);
    row("one of them in the other column", "Tyska|Svenska", true, true, false);
    row("twice the same", "Svenska|Svenska", true, true, false);
    row("others", "Tyska|Franska", false, false, false);
    row("none", "|", false, false, false);
}

void FileImportTest::languages()
{
    QFETCH(QString, file);
    QFETCH(bool, crossed);
    QFETCH(bool, hasOne);
    QFETCH(bool, hasBoth);
    const CListFiles files;
    const QString path = files.AddList(QStringLiteral("x.gls"), {QStringLiteral("c * d|C|n|1")}, file);
    const QString imported =
        QStringLiteral("0 1 0: ") + (crossed ? QStringLiteral("C|c * d|n|1") : QStringLiteral("c * d|C|n|1"));
    const auto import = [&](bool useFilter, LanguageMatch match) {
        CFileImport run(Target("a|A"), 0, {.useFilter = useFilter, .languageMatch = match});
        return Import(run, path);
    };
    QCOMPARE(import(false, LanguageMatch::Both), imported + QStringLiteral(",a|A"));
    QCOMPARE(import(true, LanguageMatch::Any), imported + QStringLiteral(",a|A"));
    QCOMPARE(import(true, LanguageMatch::One).startsWith(imported), hasOne);
    QCOMPARE(import(true, LanguageMatch::Both).startsWith(imported), hasBoth);
    QCOMPARE(import(true, LanguageMatch::Both) == QStringLiteral("1 0 0: a|A"), !hasBoth);
}

void FileImportTest::filters_data()
{
    QTest::addColumn<WordListFilter>("filter");
    QTest::addColumn<FileFault>("fault");
    using enum FileFault;
    const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
    QTest::newRow("bounds are included") << WordListFilter{.minimum = 2, .maximum = 2} << None;
    QTest::newRow("too few") << WordListFilter{.minimum = 3} << TooFew;
    QTest::newRow("too many") << WordListFilter{.maximum = 1} << TooMany;
    QTest::newRow("parts of all texts, in any case, trimmed") << WordListFilter{.author = text(" åKE "),
        .comments = text("KAPITEL"),
        .languages = {text("svensk"), text("GELSK")}} << None;
    QTest::newRow("no wildcards") << WordListFilter{.author = text("*")} << Author;
    QTest::newRow("accents count") << WordListFilter{.author = text("ake")} << Author;
    QTest::newRow("comments") << WordListFilter{.comments = text("Åke")} << Comments;
    QTest::newRow("languages stay in their columns")
        << WordListFilter{.languages = {text("Engelska"), {}}} << Language1;
    QTest::newRow("language 2") << WordListFilter{.languages = {QString(), text("Svenska")}} << Language2;
    QTest::newRow("the number comes first") << WordListFilter{.minimum = 3, .author = text("x")} << TooFew;
}

void FileImportTest::filters()
{
    QFETCH(WordListFilter, filter);
    QFETCH(FileFault, fault);
    const CListFiles files;
    const QString path = files.AddList(QStringLiteral("x.gls"), {QStringLiteral("a|A"), QStringLiteral("b|B")},
        QStringLiteral("Svenska|Engelska|Åke Öberg|Kapitel 3"));
    const KeepGoing keepGoing = true;
    CFileImport import({}, 0, {.useFilter = true, .filter = filter});
    const FileImport outcome = import.ImportFile(path, keepGoing);
    QCOMPARE(outcome.fault, fault);
    QCOMPARE(outcome.result, fault == FileFault::None ? ImportResult::Imported : ImportResult::Ignored);
    CFileImport without({}, 0, {.filter = filter});
    QCOMPARE(without.ImportFile(path, keepGoing).importedEntries, 2);
}

void FileImportTest::duplicatesAsByTheObviousLoop()
{
    CRandom random(7);
    const CListFiles files;
    CWordList target = Target("");
    target.DeleteAll();
    const auto entry = [&random] {
        const auto text = [&random] { return RandomText(random, u"aAå", 2); };
        return text() + u'|' + text() + u'x' + u'|' + text();
    };
    for (int i = 0; i < 60; ++i) {
        target.Insert(MakeEntry(entry()));
    }
    CWordList expected = target;
    CFileImport import(target, 5, {.useFilter = true, .ignoreDuplicates = true});
    int position = 5;
    for (int file = 0; file < 6; ++file) {
        QStringList entries;
        for (int i = 0; i < 80; ++i) {
            entries.append(entry());
        }
        const bool crossed = file % 2 == 1;
        const QString path = files.AddList(QStringLiteral("%1.gls").arg(file % 4), entries,
            crossed ? QStringLiteral("Engelska|Svenska") : QStringLiteral("Svenska|Engelska"));
        int ignored = 0;
        for (const QString &text : std::as_const(entries)) {
            CWordEntry wanted = MakeEntry(text);
            if (crossed) {
                wanted = CWordEntry(wanted.GetText(1), wanted.GetText(0), wanted.GetNote());
            }
            bool isThere = false;
            for (int i = 0; i < expected.Count(); ++i) {
                const CWordEntry &other = expected.Entry(i);
                isThere = isThere
                    || (other.GetText(0) == wanted.GetText(0) && other.GetText(1) == wanted.GetText(1)
                        && other.GetNote() == wanted.GetNote());
            }
            if (isThere) {
                ++ignored;
            } else {
                expected.Insert(wanted, {.position = position++});
            }
        }
        const KeepGoing keepGoing = true;
        const FileImport outcome = import.ImportFile(path, keepGoing);
        QCOMPARE(outcome.ignoredEntries, ignored);
        QCOMPARE(outcome.importedEntries, 80 - ignored);
        QCOMPARE(Joined(import.Target()), Joined(expected));
        // Once more it brings nothing.
        QCOMPARE(import.ImportFile(path, keepGoing).ignoredEntries, 80);
        QCOMPARE(import.Target().Count(), expected.Count());
    }
}

void FileImportTest::badFiles()
{
    const CListFiles files;
    const QString good = files.AddList(QStringLiteral("x.gls"), {QStringLiteral("c|C")});
    const QString plain = files.AddFile(QStringLiteral("x.txt"), "d\nD\ne");
    CFileImport import(Target("a|A"), 1, {});
    QCOMPARE(Import(import, files.Path(QStringLiteral("missing.gls"))), QStringLiteral("2 0 0: a|A"));
    QCOMPARE(Import(import, files.Path()), QStringLiteral("2 0 0: a|A"));
    QCOMPARE(
        Import(import, files.AddFile(QStringLiteral("y.gls"), "WordQuiz\nx")), QStringLiteral("2 0 0: a|A"));
    QCOMPARE(Import(import, plain), QStringLiteral("0 1 0: a|A,d|D"));
    const KeepGoing stopped = false;
    QCOMPARE(import.ImportFile(good, stopped).importedEntries, 0);
    QCOMPARE(Joined(import.Target()), QStringLiteral("a|A,d|D"));
}

void FileImportTest::summaries()
{
    const CListFiles files;
    const QByteArray header = "\nÅ\r\nc\r\n1\r\n2\r\n99\r\n"; // Author, comments, languages, a wrong number.
    const QByteArray questions = "0\r\n\r\n1\r\n%word?\r\n";
    const QList<QByteArray> contents = {"Ordelin 1" + header + "\r\n!a\r\nA\r\n\r\n\r\n \r\n\r\nb",
        "Ordelin 2.0" + header + "\r\n1\r\na\r\nA\r\n0\r\n\r\n\r\n0\r\nb\r\nB",
        "Ordelin 2.3" + header + questions + "\r\n1 0\r\na\r\nA\r\nn\r\n0 0\r\n\r\n\r\nn\r\n0 0\r\nb\r\nB\r\n",
        "Ordelin 2.3-mini" + header + questions + "\r\na\r\nA\r\n\r\nb\r\nB\r\nn",
        "Ordelin 2.3-micro" + header + questions + "\r\na\r\nA\r\nb\r\nB\r\nc", "Ordelin 2.3-micro",
        "Ordelin 9" + header, "WordQuiz\n[Vocabulary]\n1\n2\na[x]\nA\n[x]\n\nb\n", "WordQuiz\n",
        "a\nA\n\n\nb\n\nc", "", QByteArray("\xFF\xFEO\0r\0d\0", 8)};
    for (const QByteArray &content : contents) {
        const QString path = files.AddFile(QStringLiteral("x"), content);
        CWordList list;
        WordListSummary summary;
        QCOMPARE(ReadWordListSummary(summary, path), ReadWordListFile(list, path));
        QCOMPARE(summary.entries, list.Count());
        QCOMPARE(summary.author, list.GetAuthor());
        QCOMPARE(summary.comments, list.GetComments());
        QCOMPARE(summary.languages[0] + u'|' + summary.languages[1],
            list.GetLanguage(0) + u'|' + list.GetLanguage(1));
    }
    WordListSummary summary;
    QCOMPARE(ReadWordListSummary(summary, files.Path()), ReadResult::CannotOpen);
}

QTEST_GUILESS_MAIN(FileImportTest)
#include "file_import_test.moc"
