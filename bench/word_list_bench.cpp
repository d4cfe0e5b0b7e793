// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "generator.h"
#include "measure.h"
#include "model/duplicate_search.h"
#include "model/term_syntax.h"
#include "platform/random.h"
#include "reference.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>

// Each operation stands beside a reference from the same run that does the heart of the work without the
// toolkit and without the model (reference.h). Beside the ratio stands what is aimed at with 100,000 entries.

namespace {

/// Keeps the optimiser from dropping work whose result is not used.
volatile qint64 g_sink = 0;

struct Row
{
    const char *name;
    Measurement measured;
    double perCall = 1; // How many passes over the list one measurement made.
};

void Print(const Row &row, int count)
{
    std::printf("  %-34s %10.1f ns/entry %10.2f ms %9.1f MB\n", row.name,
        row.measured.seconds * 1e9 / count / row.perCall, row.measured.seconds * 1e3 / row.perCall,
        double(row.measured.peakBytes) / 1e6);
}

void Print(const Row &row, int count, const Row &reference, double aim)
{
    Print(row, count);
    std::printf("  %-34s ratio %.2f to %s, aim %.1f\n", "",
        (row.measured.seconds / row.perCall) / (reference.measured.seconds / reference.perCall), reference.name,
        aim);
}

/// Visits every pair of duplicates, as answering "no" to each question does.
qint64 WalkDuplicates(const CWordList &list, qint64 most)
{
    const CDuplicateSearch search(list);
    const auto first = search.FindNext();
    qint64 pairs = 0;
    for (auto pair = first; pair && pairs < most && (pairs == 0 || pair != first); ++pairs) {
        pair = search.FindNext({pair->language, pair->entry, pair->other + 1});
    }
    return pairs;
}

/// Program and reference wrote the same bytes, so they did the same work.
void RequireSame(const QString &path, const QString &otherPath)
{
    QFile file(path);
    QFile other(otherPath);
    if (!file.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly)) {
        std::exit(1);
    }
    const QByteArray bytes = file.readAll();
    const QByteArray mark = bytes.startsWith("\xFF\xFE") ? bytes.first(2) : QByteArray();
    if (bytes != mark + other.readAll()) {
        std::fputs("the reference wrote another file\n", stderr);
        std::exit(1);
    }
}

/// The entries of a list as the reference keeps them.
Reference::Entries PlainEntries(const CWordList &list)
{
    Reference::Entries entries;
    for (int i = 0; i < list.Count(); ++i) {
        const CWordEntry &entry = list.Entry(i);
        auto plain = std::make_unique<Reference::Entry>();
        for (int field = 0; field < CWordEntry::FieldCount; ++field) {
            plain->texts[size_t(field)] = entry.GetField(field).toStdU16String();
        }
        for (const int language : {0, 1}) {
            for (int k = 0; k <= entry.AlternativeCount(language); ++k) {
                plain->alternatives[size_t(language)].push_back(
                    entry.GetAlternative(language, k, false).toStdU16String());
            }
        }
        entries.push_back(std::move(plain));
    }
    return entries;
}

class CBenchmark
{
public:
    explicit CBenchmark(int count)
        : m_count(count), m_repeats(count >= 1000000 ? 3
                                  : count >= 100000  ? 15
                                                     : 20),
          m_ansi(m_folder.filePath(QStringLiteral("ansi.gls"))),
          m_unicode(m_folder.filePath(QStringLiteral("unicode.gls")))
    {
        // Read from a file, so that it lies in memory as a user's list does.
        CWordList generated = GenerateList(count, 1);
        if (!WriteWordListFile(generated, m_ansi) || ReadWordListFile(m_list, m_ansi) != ReadResult::Read) {
            std::exit(1);
        }
    }

    void Run()
    {
        std::printf("%d entries\n", m_count);
        Files();
        Normalising();
        Sorting();
        Searching();
        Duplicates();
        Copying();
        std::printf("\n");
    }

private:
    Measurement Take(
        const std::function<void()> &operation, const std::function<void()> &prepare = [] {}) const
    {
        return Measure(m_repeats, prepare, operation);
    }

    void Files()
    {
        for (const bool unicode : {false, true}) {
            const QString &path = unicode ? m_unicode : m_ansi;
            const std::string plainPath = path.toStdString() + ".reference";
            CWordList list = m_list;
            const Row write = {unicode ? "write, UTF-16" : "write, Windows-1252", Take([&] {
                                   if (!WriteWordListFile(list, path, {.forceUnicode = unicode})) {
                                       std::exit(1);
                                   }
                               })};
            Reference::Entries entries;
            const Row plainRead = {unicode ? "(a) read UTF-16" : "(a) read Windows-1252",
                Take(
                    [&] { entries = Reference::Read(path.toStdString(), unicode); }, [&] { entries.clear(); })};
            const Row read = {unicode ? "read, UTF-16" : "read, Windows-1252",
                Take([&] { g_sink = int(ReadWordListFile(list, path)); }, [&] { list = CWordList(); })};
            const Row plainWrite = {unicode ? "(b) write UTF-16" : "(b) write Windows-1252", Take([&] {
                                        if (!Reference::Write(entries, plainPath, unicode)) {
                                            std::exit(1);
                                        }
                                    })};
            RequireSame(path, QString::fromStdString(plainPath));
            Print(plainRead, m_count);
            Print(read, m_count, plainRead, 1.5);
            Print(plainWrite, m_count);
            Print(write, m_count, plainWrite, 1.5);
            if (unicode) {
                list = CWordList();
                const qint64 before = MemoryInUse();
                g_sink = int(ReadWordListFile(list, path));
                const qint64 size = QFile(path).size();
                std::printf("  %-34s %.1f MB, %.2f times the file, aim below 6\n", "memory of the list read",
                    double(MemoryInUse() - before) / 1e6, double(MemoryInUse() - before) / double(size));
                m_list = std::move(list); // What follows is done with lists that were opened.
            }
        }
    }

    void Normalising()
    {
        QStringList typed;
        for (int i = 0; i < m_count; ++i) {
            QString term = m_list.Entry(i).GetText(0);
            typed.append(term.replace(AlternativeJoint.toString(), QStringLiteral("*")) + u' ');
        }
        Print({"normalise a term as typed", Take([&] {
                   qint64 size = 0;
                   for (const QString &text : typed) {
                       size += NormalizeTerm(text).size();
                   }
                   g_sink = size;
               })},
            m_count);
    }

    void Sorting()
    {
        CRandom random(3);
        CWordList shuffled = m_list;
        shuffled.Sort(ShuffleKey, {}, random);
        CWordList list;
        Reference::Entries entries = PlainEntries(m_list);
        std::shuffle(entries.begin(), entries.end(), std::mt19937(3));
        const char *const names[] = {"sort by term 1", "sort by term 2", "sort by note"};
        const char *const references[] = {"(c) sort by term 1", "(c) sort by term 2", "(c) sort by note"};
        std::vector<Row> rows;
        for (const int key : {0, 1, 2}) {
            rows.push_back({references[key], Take([&] { g_sink = Reference::Sort(entries, key).front(); })});
            const Row sort = {names[key], Take([&] { list.Sort(key, {}, random); }, [&] { list = shuffled; })};
            Print(rows.back(), m_count);
            // Equal notes are sorted by both terms, so their measure is the keys of a term.
            Print(sort, m_count, rows[size_t(key % 2)], 1.2);
        }
    }

    void Searching()
    {
        const QString needle = QStringLiteral("zQx");
        const Reference::Entries entries = PlainEntries(m_list);
        const Row reference = {"(d) find, not found", Take([&] { g_sink = Reference::Find(entries, u"zQx"); })};
        const Row often = {"(d) find, found often", Take([&] { g_sink = Reference::Find(entries, u"hus"); })};
        Print(reference, m_count);
        Print(often, m_count);
        Print({"find all, not found", Take([&] { g_sink = qint64(m_list.FindAll({.text = needle}).size()); })},
            m_count, reference, 1.2);
        Print({"find all, found often",
                  Take([&] { g_sink = qint64(m_list.FindAll({.text = QStringLiteral("hus")}).size()); })},
            m_count, often, 1.2);
        const CWordEntry candidate(QStringLiteral("nowhere * in"), QStringLiteral("the list"));
        constexpr int Calls = 10;
        Print({"check for a similar entry", Take([&] {
                   for (int i = 0; i < Calls; ++i) {
                       int similar = NoEntry;
                       g_sink = int(m_list.FindSimilar(candidate, similar, NoEntry, AnyLanguage));
                   }
               }),
                  Calls},
            m_count);
    }

    void Duplicates()
    {
        const Reference::Entries entries = PlainEntries(m_list);
        const Row reference = {
            "(e) count duplicates", Take([&] { g_sink = Reference::CountDuplicates(entries); })};
        Print(reference, m_count);
        Print({"index of duplicates",
                  Take([&] { g_sink = int(CDuplicateSearch(m_list).FindNext().has_value()); })},
            m_count, reference, 2);
        qint64 pairs = 0;
        // A list of this kind has pairs without end; as many as entries are visited.
        Print({"find next duplicate, whole list", Take([&] { pairs = WalkDuplicates(m_list, m_count); })},
            m_count);
        CWordList list;
        int merged = 0;
        Print({"merge all", Take([&] { merged = list.MergeAll(); }, [&] { list = m_list; })}, m_count);
        std::printf(
            "  %-34s %lld pairs visited, %d entries merged away\n", "", static_cast<long long>(pairs), merged);
    }

    void Copying()
    {
        std::vector<std::shared_ptr<CWordEntry>> pointers;
        pointers.reserve(size_t(m_count));
        for (int i = 0; i < m_count; ++i) {
            pointers.push_back(std::make_shared<CWordEntry>(m_list.Entry(i)));
        }
        std::vector<std::shared_ptr<CWordEntry>> copiedPointers;
        CWordList copied;
        const Row reference = {"(f) copy a vector of shared pointers",
            Take([&] { copiedPointers = pointers; }, [&] { copiedPointers = {}; })};
        Print(reference, m_count);
        Print(
            {"copy of the list", Take([&] { copied = m_list; }, [&] { copied = {}; })}, m_count, reference, 2);
        const std::vector<int> one = {m_count / 2};
        const auto copyAndChange = [&] {
            copied = m_list;
            copied.SetFlags(0, one, FlagMode::Toggle);
        };
        Print({"copy, and a change of one entry", Take(copyAndChange, [&] { copied = {}; })}, m_count,
            reference, 2);
    }

    int m_count;
    int m_repeats;
    QTemporaryDir m_folder;
    QString m_ansi;
    QString m_unicode;
    CWordList m_list;
};

}

int main(int argc, char *argv[])
{
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i) {
        counts.push_back(std::atoi(argv[i]));
        if (counts.back() <= 0) {
            std::fputs("usage: word_list_bench [COUNT...]\n", stderr);
            return 2;
        }
    }
    if (counts.empty()) {
        counts = {1000, 10000, 100000, 1000000};
    }
    std::printf("  %-34s %19s %13s %12s\n", "", "time", "", "peak memory");
    for (const int count : counts) {
        CBenchmark(count).Run();
    }
    return 0;
}
