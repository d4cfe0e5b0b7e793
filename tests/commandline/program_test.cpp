// SPDX-License-Identifier: MIT
#include "commandline/verb.h"
#include "fileformats/formats.h"
#include "support/dictionary_files.h"
#include "support/files.h"
#include "support/list_files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// What may go wrong around a run.
enum class Trouble {
    None,
    FullDisk, ///< No file may grow beyond some bytes.
    ClosedPipe, ///< Nobody reads the output.
    ClosedStreams ///< There are neither input nor output.
};

struct Around
{
    QByteArray input = {};
    QString outputFile = {};
    const char *locale = "en_GB.UTF-8";
    Trouble trouble = Trouble::None;
};

struct Outcome
{
    int status = -1; ///< -1 after a crash.
    QString output = {};
    QString errors = {};
};

/// In the child: a limit to the size of files, or an output that nobody reads.
void Prepare(Trouble trouble)
{
    if (trouble == Trouble::FullDisk) {
        const rlimit limit = {64, 64};
        setrlimit(RLIMIT_FSIZE, &limit);
    } else if (trouble == Trouble::ClosedPipe) {
        int ends[2] = {};
        if (pipe(ends) == 0) {
            close(ends[0]);
            dup2(ends[1], STDOUT_FILENO);
        }
    } else if (trouble == Trouble::ClosedStreams) {
        close(STDIN_FILENO);
        close(STDOUT_FILENO);
    }
}

/// Runs the program as scripts do: without a home, without a display, its streams no terminals.
Outcome RunProgram(const QStringList &arguments, const Around &around = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"HOME", "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_CONFIG_HOME",
             "XDG_STATE_HOME", "XDG_DATA_HOME", "LANGUAGE", "LANG"}) {
        environment.remove(QLatin1StringView(name));
    }
    environment.insert(u"LC_ALL"_s, QLatin1StringView(around.locale));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier([&around] { Prepare(around.trouble); });
    if (!around.outputFile.isEmpty()) {
        process.setStandardOutputFile(around.outputFile);
    }
    process.start(QStringLiteral(ORDELIN_PROGRAM), arguments);
    process.write(around.input);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000)) {
        process.kill();
        process.waitForFinished();
    }
    Outcome outcome;
    outcome.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    outcome.output = QString::fromUtf8(process.readAllStandardOutput());
    outcome.errors = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

/// The entries of a file as Describe() has them, with commas between.
QString Entries(const QString &path)
{
    CWordList list;
    if (IsRefused(ReadListFile(list, path).result)) {
        return u"refused"_s;
    }
    QStringList entries;
    list.ForEach([&entries](int, const CWordEntry &entry) { entries.append(Describe(entry)); });
    return entries.join(u',');
}

QString Words(const Outcome &outcome)
{
    return u"%1: %2%3"_s.arg(outcome.status).arg(outcome.output, outcome.errors);
}

const QByteArray Flagged = "Ordelin 2.3\r\nAnn\r\nfirst\r\nSvenska\r\nEngelska\r\n4\r\n0\r\n\r\n0\r\n\r\n\r\n"
                           "1 0\r\nkatt\r\ncat * puss\r\n\r\n0 1\r\nhund\r\ndog\r\nanimal\r\n"
                           "0 0\r\nbil\r\ncar\r\n\r\n0 0\r\nvagn\r\ncar * waggon\r\n\r\n";

}

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void info()
    {
        const CListFiles files;
        const QString list = files.AddFile(u"a.gls"_s, Flagged);
        const QString lines =
            QString(u"%1\n  Format:        Word list file\n  Languages:     Svenska, Engelska\n"
                    "  Author:        Ann\n  Comments:      first\n  Entries:       4\n"
                    "  Flagged:       1, 1\n  Notes:         1\n  Duplicates:    2\n"_s)
                .arg(list);
        const Outcome both = RunProgram({u"info"_s, list, u"gone.gls"_s, list});
        QCOMPARE(both.output, lines + lines);
        QCOMPARE(both.errors, u"ordelin: The file gone.gls could not be opened.\n"_s);
        QCOMPARE(both.status, 2);
        const Outcome swedish = RunProgram({u"info"_s, u"gone.gls"_s, list}, {.locale = "sv_SE.UTF-8"});
        QVERIFY2(swedish.output.contains(u"\n  Glosor:        4\n"_s)
                && swedish.errors.startsWith(u"ordelin: Det gick inte att öppna filen gone.gls."_s),
            qPrintable(Words(swedish)));

        // From a pipe, of either name.
        for (const QString &name : {u"-"_s, u"/dev/stdin"_s}) {
            const Outcome piped = RunProgram({u"info"_s, u"--json"_s, name}, {.input = Flagged});
            QCOMPARE(piped.status, 0);
            const QJsonObject json = QJsonDocument::fromJson(piped.output.toUtf8()).array().at(0).toObject();
            QCOMPARE(json.value(u"format"_s), u"glossary"_s);
            QCOMPARE(json.value(u"entries"_s), 4);
            QCOMPARE(json.value(u"flagged"_s).toArray(), QJsonArray({1, 1}));
            QCOMPARE(json.value(u"duplicates"_s), 2);
            QCOMPARE(json.value(u"languages"_s).toArray().at(1), u"Engelska"_s);
        }
        QCOMPARE(RunProgram({u"info"_s, u"-"_s}, {.input = QByteArray(1000, '\x01')}).status, 2);
        // Nothing is left of it for a second time, and a stream that is closed has nothing.
        QCOMPARE(RunProgram({u"info"_s, u"-"_s, u"-"_s}, {.input = Flagged}).status, 2);
        QCOMPARE(RunProgram({u"info"_s, u"-"_s}, {.trouble = Trouble::ClosedStreams}).status, 2);
        QCOMPARE(RunProgram({u"info"_s, list}, {.trouble = Trouble::ClosedStreams}).status, 2);
    }

    void convert()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const QString text = files.Path(u"a.txt"_s);
        const Outcome lossy = RunProgram({u"convert"_s, in, text});
        QCOMPARE(lossy.status, 0);
        QVERIFY2(lossy.errors.contains(u"Flags: 2"_s) && lossy.errors.contains(text), qPrintable(Words(lossy)));
        QCOMPARE(Entries(text), u"katt|cat * puss,hund|dog,bil|car,vagn|car * waggon"_s);

        // Nothing that is there is lost without a word, but on request it is replaced.
        const QString own = files.AddFile(u"b.gls"_s, "mine");
        const Outcome refused = RunProgram({u"convert"_s, in, own});
        QCOMPARE(refused.status, 2);
        QVERIFY(refused.errors.contains(u"--force"_s));
        QCOMPARE(Content(own), QByteArray("mine"));
        QCOMPARE(RunProgram({u"convert"_s, u"--force"_s, in, own}).status, 0);
        QCOMPARE(Content(own), Flagged);

        // Through pipes; the same bytes come out, and a file may be its own source.
        QCOMPARE(RunProgram({u"convert"_s, u"-"_s, u"-"_s}, {.input = Flagged}).output.toUtf8(), Flagged);
        QCOMPARE(RunProgram({u"sort"_s, own, own, u"--force"_s}).status, 0);
        QCOMPARE(Entries(own), u"bil|car,hund|dog|animal|2,katt|cat * puss||1,vagn|car * waggon"_s);
    }

    void failingOutput()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const QString own = files.AddFile(u"b.gls"_s, "mine");
        const Outcome full = RunProgram({u"convert"_s, u"--force"_s, in, own}, {.trouble = Trouble::FullDisk});
        QCOMPARE(full.status, 2);
        QCOMPARE(full.errors, u"ordelin: The file %1 could not be saved.\n"_s.arg(own));
        QCOMPARE(Content(own), QByteArray("mine"));
        QCOMPARE(QDir(files.Path()).entryList(QDir::Files | QDir::Hidden).size(), 2);

        const QString output = files.Path(u"output"_s);
        const QList<QStringList> verbs = {{u"convert"_s, in, u"-"_s}, {u"info"_s, in}, {u"table"_s, in},
            {u"check"_s, u"--json"_s, in}, {u"info"_s, u"--help"_s}};
        for (const QStringList &arguments : verbs) {
            for (const Around &around : {Around{.outputFile = output, .trouble = Trouble::FullDisk},
                     Around{.trouble = Trouble::ClosedPipe}}) {
                const Outcome failed = RunProgram(arguments, around);
                QVERIFY2(failed.status == 2 && failed.errors.startsWith(u"ordelin: standard output "_s),
                    qPrintable(arguments.join(u' ') + Words(failed)));
            }
        }
        QCOMPARE(RunProgram({u"convert"_s, in, files.Path(u"no/b.gls"_s)}).status, 2);
    }

    void wrongUse()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const struct
        {
            QStringList arguments;
            QString told; // Behind the program's name.
        } rows[] = {
            {{u"info"_s}, u"something is missing on the command line"_s},
            {{u"sort"_s, in, u"b"_s, u"c"_s}, u"there is too much on the command line: c"_s},
            {{u"info"_s, u"--jason"_s, in}, u"unknown option: --jason"_s},
            {{u"info"_s, u"-j"_s, in}, u"unknown option: -j"_s},
            {{u"info"_s, u"--json=1"_s, in}, u"the option takes no value: --json"_s},
            {{u"info"_s, in, u"--from"_s}, u"the value is missing: --from=TEXT"_s},
            {{u"info"_s, u"--from=x"_s, in}, u"unknown format: x"_s},
            {{u"sort"_s, in, u"-"_s, u"--by"_s, u"4"_s}, u"\"4\" won’t do for --by=term1|term2|note"_s},
            {{u"select"_s, u"--number=0"_s, in, u"-"_s},
                u"\"0\" won’t do for --number=N: it must be a number from 1"_s},
            {{u"table"_s, u"--text-color=12345G"_s, in}, u"\"12345G\" won’t do"_s},
            {{u"table"_s, u"--columns=term1,x"_s, in}, u"\"term1,x\" won’t do"_s},
            {{u"convert"_s, in, u"out.xyz"_s}, u"out.xyz: the name tells no format"_s},
            {{u"convert"_s, u"--languages=1,1"_s, in, u"-"_s}, u"\"1,1\" won’t do"_s},
            {{u"quiz"_s, u"-"_s}, u"The file "_s},
            {{u"info"_s, u"--"_s, u"--json"_s}, u"The file --json could not be opened."_s},
        };
        for (const auto &[arguments, told] : rows) {
            const Outcome outcome = RunProgram(arguments);
            QVERIFY2(outcome.status == 2 && outcome.output.isEmpty()
                    && outcome.errors.startsWith(u"ordelin: "_s + told),
                qPrintable(arguments.join(u' ') + u' ' + Words(outcome)));
        }
        QVERIFY(RunProgram({u"info"_s}).errors.contains(u"ordelin info --help"_s));
    }

    void check()
    {
        const CListFiles files;
        const QString clean = files.AddList(u"clean.gls"_s, {u"a|b"_s, u"c [d]|e * f"_s});
        const Outcome nothing = RunProgram({u"check"_s, clean});
        QCOMPARE(Words(nothing), u"0: "_s);
        const QString faulty = files.AddList(u"faulty.gls"_s, {u"a [b|c"_s, u"|d"_s, u"e|c * f"_s});
        const Outcome found = RunProgram({u"check"_s, clean, faulty});
        QCOMPARE(found.status, 1);
        QCOMPARE(found.output,
            QString(u"%1:1: \"a [b\" has a bracket that is not closed\n"
                    "%1:2: a term is missing (Svenska)\n%1:3: \"c\" is in entry 1 too\n"_s)
                .arg(faulty));
        const Outcome json = RunProgram({u"check"_s, u"--json"_s, clean, faulty});
        QCOMPARE(json.status, 1);
        const QJsonArray lists = QJsonDocument::fromJson(json.output.toUtf8()).array();
        QVERIFY(lists.at(0).toObject().value(u"findings"_s).toArray().isEmpty());
        const QJsonObject shared = lists.at(1).toObject().value(u"findings"_s).toArray().at(2).toObject();
        QCOMPARE(shared,
            QJsonObject({{u"kind"_s, u"shared-alternative"_s}, {u"field"_s, u"term2"_s}, {u"text"_s, u"c"_s},
                {u"entry"_s, 3}, {u"other"_s, 1}}));
        QCOMPARE(RunProgram({u"check"_s, faulty, u"gone"_s}).status, 2);
    }

    void merge()
    {
        const CListFiles files;
        const QString a = files.AddList(u"a.gls"_s, {u"en|one"_s, u"två|two"_s}, u"Svenska|Engelska|Ann"_s);
        const QString crossed =
            files.AddList(u"b.gls"_s, {u"two|två"_s, u"three|tre"_s}, u"Engelska|Svenska"_s);
        const QString german = files.AddList(u"c.gls"_s, {u"fyra|vier"_s}, u"Svenska|Tyska"_s);
        const QString nameless = files.AddFile(u"d.txt"_s, "x\ny\n");
        const QString out = files.Path(u"out.gls"_s);
        const struct
        {
            QStringList arguments;
            int status;
            QString entries;
        } rows[] = {
            {{a, crossed, german}, 0, u"en|one,två|two,två|two,tre|three,fyra|vier"_s},
            {{u"--ignore-duplicates"_s, a, crossed, a}, 0, u"en|one,två|two,tre|three"_s},
            {{u"--languages=both"_s, a, german, crossed}, 0, u"en|one,två|two,två|two,tre|three"_s},
            {{u"--min=2"_s, german, a}, 0, u"en|one,två|two"_s},
            {{nameless, nameless}, 0, u"x|y,x|y"_s},
            {{u"--author=Bob"_s, a, crossed}, 1, u"refused"_s},
            {{a, u"gone"_s}, 2, u"refused"_s},
        };
        for (const auto &[arguments, status, entries] : rows) {
            QFile::remove(out);
            const Outcome outcome = RunProgram(QStringList{u"merge"_s, out} + arguments);
            QVERIFY2(outcome.status == status, qPrintable(arguments.join(u' ') + Words(outcome)));
            QCOMPARE(Entries(out), entries);
        }
        const Outcome filtered = RunProgram({u"merge"_s, u"--languages=both"_s, out, a, german});
        QVERIFY(filtered.errors.contains(german + u": left out, because its languages are others"_s));
        CWordList merged;
        QCOMPARE(ReadListFile(merged, out).result, ReadResult::Read);
        QCOMPARE(merged.GetAuthor(), u"Ann"_s);
    }

    void orderAndChoice()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const QString out = files.Path(u"out.gls"_s);
        const struct
        {
            QString arguments;
            int status;
            QString terms; // Those of language 1.
        } rows[] = {
            {u"sort"_s, 0, u"bil hund katt vagn"_s},
            {u"sort --by=term2 --descending"_s, 0, u"hund katt vagn bil"_s},
            {u"sort --by-length --flagged-together"_s, 0, u"katt bil hund vagn"_s},
            {u"select --flagged"_s, 0, u"katt hund"_s},
            {u"select --flagged=2"_s, 0, u"hund"_s},
            {u"select --not-flagged=1 --find=CA --in term2"_s, 0, u"bil vagn"_s},
            {u"select --find=c?r* --wildcards --number=1"_s, 0, u"bil"_s},
            {u"select --find=CAR --match-case"_s, 1, u"none"_s},
            {u"select --flagged=both"_s, 1, u"none"_s},
        };
        for (const auto &[arguments, status, terms] : rows) {
            QFile::remove(out);
            const Outcome outcome = RunProgram(arguments.split(u' ') + QStringList{in, out});
            QVERIFY2(outcome.status == status, qPrintable(arguments + Words(outcome)));
            CWordList list;
            QStringList found;
            if (ReadListFile(list, out).result == ReadResult::Read) {
                list.ForEach([&found](int, const CWordEntry &entry) { found.append(entry.GetText(0)); });
            }
            QCOMPARE(found.isEmpty() ? u"none"_s : found.join(u' '), terms);
        }
        const QString one = RunProgram({u"shuffle"_s, u"--seed=1"_s, in, u"-"_s}).output;
        QVERIFY(one.size() == Flagged.size() && one.toUtf8() != Flagged);
        QCOMPARE(RunProgram({u"shuffle"_s, u"--seed=1"_s, in, u"-"_s}).output, one);
    }

    void separatedText()
    {
        const CListFiles files;
        const QString out = files.Path(u"out.gls"_s);
        const struct
        {
            QString arguments;
            QByteArray input;
            QString entries;
        } rows[] = {
            {{}, "Svenska;Engelska\nen;\"one; 1\"\ntv\xC3\xA5;two\n", u"en|one; 1,två|two"_s},
            {u"--from-columns=term2,-,term1"_s, "a;b;c\nd;e;f\n", u"c|a,f|d"_s},
            {u"--from-separator=pipe --from-heading=no"_s, "a|b,c\nd|e\n", u"a|b,c,d|e"_s},
            {u"--from-encoding=windows-1252 --from-heading=no"_s, "\xE5;b\nc;d\n", u"å|b,c|d"_s},
            {u"--from=separated --split-semicolons --comments-in-parentheses"_s, "a\tb (c); d\ne\tf\n",
                u"a|b [c] * d,e|f"_s},
        };
        for (const auto &[arguments, input, entries] : rows) {
            const Outcome outcome = RunProgram(QStringList{u"convert"_s, u"--force"_s, u"-"_s, out}
                    + arguments.split(u' ', Qt::SkipEmptyParts),
                {.input = input});
            QVERIFY2(outcome.status == 0, qPrintable(arguments + Words(outcome)));
            QCOMPARE(Entries(out), entries);
        }
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const QString tabs = files.Path(u"a.tsv"_s);
        QCOMPARE(
            RunProgram({u"convert"_s, in, tabs, u"--to-columns=term2,term1"_s, u"--to-mark=no"_s}).status, 0);
        QVERIFY2(
            Content(tabs).startsWith("Engelska\tSvenska\r\ncat * puss\tkatt\r\n"), Content(tabs).constData());

        // A suffix names a format, and what separates its columns, whatever the file is called.
        QCOMPARE(RunProgram({u"convert"_s, tabs, tabs, u"--to=csv"_s, u"--force"_s}).status, 0);
        QVERIFY2(Content(tabs).contains("Engelska,Svenska\r\n"), Content(tabs).constData());
        const Outcome written =
            RunProgram({u"convert"_s, tabs, u"-"_s, u"--from=csv"_s, u"--to=tsv"_s, u"--to-mark=no"_s});
        QVERIFY2(written.output.startsWith(u"Engelska\tSvenska\r\n"_s), qPrintable(Words(written)));
        QVERIFY(RunProgram({u"merge"_s, u"-"_s, in, in, u"--to=tsv"_s}).output.contains(u"katt\tcat"_s));
    }

    void table()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const Outcome page = RunProgram({u"table"_s, in, u"--special=flagged"_s, u"--special-color=FF8001"_s});
        QVERIFY2(
            page.status == 0 && page.output.contains(u" <td nowrap bgcolor=\"FF8001\"><b>katt</b></td>\r\n"_s),
            qPrintable(Words(page)));
        const Outcome text = RunProgram({u"table"_s, in, u"-"_s, u"--format=text"_s,
            u"--columns=term2,empty-term1"_s, u"--alternatives= / "_s});
        QVERIFY2(text.output.startsWith(u"Engelska\tSvenska\r\ncat / puss\t"_s), qPrintable(Words(text)));
        const QString pdf = files.Path(u"a.pdf"_s);
        QCOMPARE(Words(RunProgram({u"table"_s, in, pdf})), u"0: "_s);
        QVERIFY(Content(pdf).startsWith("%PDF-"));
        QVERIFY(RunProgram({u"table"_s, in, u"--format=pdf"_s}).output.startsWith(u"%PDF-"_s));
    }

    void words()
    {
        const QTemporaryDir folder;
        QVERIFY(WriteDictionary(folder, u"freedict-swe-eng"_s,
            {{"hund", "hund <n>\n1. dog, hound\n"}, {"katt", "katt\ncat\n"},
                {"kattunge", "kattunge\nkitten\n"}}));
        const QStringList start = {u"words"_s, u"--dictionaries"_s, folder.path()};
        const Outcome found = RunProgram(start + QStringList{u"Svenska"_s, u"en"_s, u"hund"_s, u"x"_s});
        QCOMPARE(Words(found), u"0: hund = dog * hound\nordelin: x: not in the dictionary\n"_s);
        QCOMPARE(RunProgram(start + QStringList{u"sv"_s, u"eng"_s}, {.input = "katt\n\nhund\n"}).output,
            u"katt = cat\nhund = dog * hound\n"_s);
        QCOMPARE(RunProgram(start + QStringList{u"sv"_s, u"eng"_s, u"y"_s}).status, 1);
        QVERIFY(RunProgram(start + QStringList{u"sv"_s, u"tyska"_s, u"y"_s})
                    .errors.contains(u"freedict-swe-eng"_s));
        const QString out = folder.filePath(u"out.gls"_s);
        QCOMPARE(RunProgram(start
                     + QStringList{u"--beginning"_s, u"--output"_s, out, u"swedish"_s, u"english"_s, u"katt"_s})
                     .status,
            0);
        QCOMPARE(Entries(out), u"katt|cat,kattunge|kitten"_s);
    }

    void quiz()
    {
        const CListFiles files;
        const QString in = files.AddFile(u"a.gls"_s, Flagged);
        const QStringList arguments = {
            u"quiz"_s, in, u"--order=list"_s, u"--rounds=1"_s, u"--wrong=leave"_s, u"--flagged=always"_s};
        // Wrong but then accepted, right, skipped, and wrong.
        const QByteArray answers = "cart\n:r\ndog\n:s\ncat\n";
        const Outcome played = RunProgram(arguments, {.input = answers});
        QCOMPARE(played.status, 0);
        QVERIFY2(
            played.output.contains(u"Round 1 of 1. Word 1 of 4. 0 of 0 correct.\nWhat is “katt” in Engelska?"_s)
                && played.output.contains(u"cat * puss\n"_s),
            qPrintable(Words(played)));
        QCOMPARE(Content(in), Flagged);
        QCOMPARE(RunProgram(arguments + QStringList{u"--save-flags"_s}, {.input = answers}).status, 0);
        QCOMPARE(Entries(in), u"katt|cat * puss * cart||1,hund|dog|animal|12,bil|car,vagn|car * waggon"_s);

        const QString none = files.AddList(u"none.gls"_s, {u"a|"_s});
        QCOMPARE(RunProgram({u"quiz"_s, none}).status, 1);
        const QString text = files.AddFile(u"d.txt"_s, "x\ny\n");
        QCOMPARE(RunProgram({u"quiz"_s, u"--save-flags"_s, text}).status, 2);
    }

    void hostileTexts()
    {
        const CListFiles files;
        const QByteArray escape = "\x1B]0;owned\x07\x1B[2J";
        const QByteArray controls = "\xC2\x9B"
                                    "2J\xE2\x80\xAE"
            + escape; // UTF-8
        const QString in = files.AddFile(u"a\u001b[2J\nb.gls"_s,
            "\xEF\xBB\xBFOrdelin 2.3-mini\r\n" + escape + "\r\n" + controls + "\r\n" + controls
                + "\r\nE\r\n1\r\n0\r\n\r\n0\r\n\r\n\r\n[" + controls + "\r\nb\r\n" + controls + "\r\n");
        const QList<QStringList> runs = {{u"info"_s, in}, {u"info"_s, u"--json"_s, in}, {u"check"_s, in},
            {u"check"_s, u"--json"_s, in}, {u"quiz"_s, in}, {u"convert"_s, in, in},
            {u"info"_s, u"--"_s, u"\u001b[2J"_s}, {u"info"_s, u"--\u001b[2J"_s}};
        for (const QStringList &arguments : runs) {
            const Outcome outcome = RunProgram(arguments, {.input = controls + "\n:r\n:q\n"});
            const QString all = outcome.output + outcome.errors;
            QVERIFY(!all.isEmpty());
            QVERIFY2(std::ranges::none_of(all,
                         [](QChar unit) {
                             return (unit.category() == QChar::Other_Control && unit != u'\n')
                                 || unit == u'\u202E';
                         }),
                qPrintable(arguments.join(u' ') + Words(outcome)));
        }
        // The text is there all the same.
        QVERIFY(RunProgram({u"info"_s, u"--json"_s, in}).output.contains(u"\\u009b2J\\u202e"_s));
    }

    void everyOptionIsDescribed()
    {
        const QDir source(QStringLiteral(ORDELIN_SOURCE_DIR));
        const auto read = [&source](const QString &name) {
            return QString::fromUtf8(Content(source.filePath(name)));
        };
        QStringList places;
        for (const QString &page : {u"packaging/ordelin.en.1"_s, u"packaging/ordelin.sv.1"_s}) {
            places.append(read(page).remove(u'\\'));
        }
        const QStringList completions = {read(u"packaging/completions/ordelin.bash"_s),
            read(u"packaging/completions/ordelin.zsh"_s), read(u"packaging/completions/ordelin.fish"_s)};
        const QString general = RunProgram({u"--help"_s}).output;
        for (const Verb &verb : Verbs()) {
            const QString name = verb.Name();
            QVERIFY2(general.contains(u"\n  %1 "_s.arg(name)), qPrintable(name));
            const Outcome help = RunProgram({name, u"--help"_s}, {.locale = "sv_SE.UTF-8"});
            QCOMPARE(help.status, 0);
            QVERIFY(help.output.startsWith(u"Användning: ordelin %1 "_s.arg(name)));
            // Of each place the section of the verb.
            QStringList sections = {help.output};
            for (const QString &page : std::as_const(places)) {
                sections.append(page.section(u".SS ordelin %1 "_s.arg(name), 1, 1).section(u"\n.S"_s, 0, 0));
            }
            sections.append(
                completions.at(0).section(u"    %1) options="_s.arg(name), 1, 1).section(u'\n', 0, 0));
            sections.append(completions.at(1).section(u"\n%1)\n"_s.arg(name), 1, 1).section(u";;"_s, 0, 0));
            sections.append(
                QStringList(completions.at(2).split(u'\n').filter(u"subcommand_from %1'"_s.arg(name)))
                    .join(u'\n')
                    .replace(u" -l "_s, u" --"_s));
            for (const Option &option : verb.options) {
                const QRegularExpression written(u"--%1(?![a-z-])"_s.arg(option.Name()));
                for (const QString &section : std::as_const(sections)) {
                    QVERIFY2(section.contains(written), qPrintable(name + u" --"_s + option.Name() + section));
                }
            }
        }
        for (const Format &format : Formats()) {
            for (const QString &completion : completions) {
                QVERIFY2(completion.contains(format.key), format.key.data());
            }
        }
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "program_test.moc"
