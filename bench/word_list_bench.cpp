// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "generator.h"
#include "measure.h"
#include "model/duplicate_search.h"
#include "model/term_syntax.h"
#include "platform/random.h"
#include "platform/windows_1252.h"

#include <QFile>
#include <QStringDecoder>
#include <QTemporaryDir>

#include <unicode/ucol.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

// Each operation stands beside a reference from the same run that is written without the model: what the bare
// libraries take for the heart of the work. Beside the ratio stands what is aimed at with 100,000 entries.

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

// (a) read the file, decode it, split it into lines
void ReadLinesReference(const QString &path, bool unicode)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::exit(1);
    }
    const QByteArray bytes = file.readAll();
    const QString text =
        unicode ? QString(QStringDecoder(QStringDecoder::Utf16LE)(bytes)) : QString::fromLatin1(bytes);
    g_sink = text.split(u'\n').size();
}

// (b) sort keys of one field and a sort of them
void SortKeysReference(const CWordList &list, int field)
{
    UErrorCode status = U_ZERO_ERROR;
    UCollator *collator = ucol_open("sv", &status);
    ucol_setStrength(collator, UCOL_SECONDARY);
    std::vector<std::pair<std::string, int>> keys;
    keys.reserve(size_t(list.Count()));
    std::array<char, 4096> buffer;
    for (int i = 0; i < list.Count(); ++i) {
        const QString &text = list.Entry(i).GetField(field);
        const int size = ucol_getSortKey(collator, reinterpret_cast<const UChar *>(text.utf16()),
            int(text.size()), reinterpret_cast<uint8_t *>(buffer.data()), int(buffer.size()));
        keys.emplace_back(std::string(buffer.data(), size_t(size)), i);
    }
    std::sort(keys.begin(), keys.end());
    g_sink = keys.front().second;
    ucol_close(collator);
}

// (c) fold and scan all texts
void ScanReference(const CWordList &list, const QString &needle)
{
    const QString folded = needle.toCaseFolded();
    qint64 found = 0;
    for (int i = 0; i < list.Count(); ++i) {
        for (const int field : {0, 1, 2}) {
            found += int(list.Entry(i).GetField(field).toCaseFolded().contains(folded));
        }
    }
    g_sink = found;
}

// (e) hash all alternatives
void HashReference(const CWordList &list)
{
    for (const int language : {0, 1}) {
        QHash<QString, int> hash;
        for (int i = 0; i < list.Count(); ++i) {
            const CWordEntry &entry = list.Entry(i);
            for (int k = 0; k <= entry.AlternativeCount(language); ++k) {
                ++hash[entry.GetAlternative(language, k, false)];
            }
        }
        g_sink = hash.size();
    }
}

/// Visits every pair of duplicates, as answering "no" to each question does.
qint64 WalkDuplicates(const CWordList &list, qint64 most)
{
    const CDuplicateSearch search(list);
    DuplicatePair first;
    qint64 pairs = 0;
    if (search.FindNext({}, first)) {
        DuplicatePair pair = first;
        do {
            ++pairs;
            search.FindNext({pair.language, pair.entry, pair.other + 1}, pair);
        } while (pair != first && pairs < most);
    }
    return pairs;
}

class CBenchmark
{
public:
    explicit CBenchmark(int count)
        : m_count(count), m_repeats(count >= 1000000 ? 2
                                  : count >= 100000  ? 5
                                                     : 20),
          m_list(GenerateList(count, 1)), m_ansi(m_folder.filePath(QStringLiteral("ansi.gls"))),
          m_unicode(m_folder.filePath(QStringLiteral("unicode.gls")))
    {
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
            CWordList list = m_list;
            const Row write = {unicode ? "write, UTF-16" : "write, Windows-1252", Take([&] {
                                   if (!WriteWordListFile(list, path, {.forceUnicode = unicode})) {
                                       std::exit(1);
                                   }
                               })};
            const Row reference = {unicode ? "(a) lines of UTF-16" : "(a) lines of Windows-1252",
                Take([&] { ReadLinesReference(path, unicode); })};
            const Row read = {unicode ? "read, UTF-16" : "read, Windows-1252",
                Take([&] { g_sink = int(ReadWordListFile(list, path)); }, [&] { list = CWordList(); })};
            Print(reference, m_count);
            Print(read, m_count, reference, 6);
            Print(write, m_count, reference, 4);
            if (unicode) {
                list = CWordList();
                const qint64 before = MemoryInUse();
                g_sink = int(ReadWordListFile(list, path));
                const qint64 size = QFile(path).size();
                std::printf("  %-34s %.1f MB, %.2f times the file, aim below 6\n", "memory of the list read",
                    double(MemoryInUse() - before) / 1e6, double(MemoryInUse() - before) / double(size));
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
        shuffled.Sort(-1, {}, random);
        CWordList list;
        const char *const names[] = {"sort by term 1", "sort by term 2", "sort by note"};
        const char *const references[] = {
            "(b) sort keys of term 1", "(b) sort keys of term 2", "(b) sort keys of notes"};
        std::vector<Row> rows;
        for (const int key : {0, 1, 2}) {
            rows.push_back({references[key], Take([&] { SortKeysReference(shuffled, key); })});
            const Row sort = {names[key], Take([&] { list.Sort(key, {}, random); }, [&] { list = shuffled; })};
            Print(rows.back(), m_count);
            // Equal notes are sorted by both terms, so their measure is the keys of a term.
            Print(sort, m_count, rows[size_t(key % 2)], 1.2);
        }
    }

    void Searching()
    {
        const QString needle = QStringLiteral("zQx");
        const Row reference = {"(c) fold and scan", Take([&] { ScanReference(m_list, needle); })};
        Print(reference, m_count);
        Print({"find all, not found", Take([&] { g_sink = qint64(m_list.FindAll({.text = needle}).size()); })},
            m_count, reference, 1.3);
        Print({"find all, found often",
                  Take([&] { g_sink = qint64(m_list.FindAll({.text = QStringLiteral("hus")}).size()); })},
            m_count, reference, 1.3);
        const CWordEntry candidate(QStringLiteral("nowhere * in"), QStringLiteral("the list"));
        constexpr int Calls = 10;
        Print({"check for a similar entry", Take([&] {
                   for (int i = 0; i < Calls; ++i) {
                       int similar = -1;
                       g_sink = int(m_list.FindSimilar(candidate, similar, -1, -1));
                   }
               }),
                  Calls},
            m_count);
    }

    void Duplicates()
    {
        const Row reference = {"(e) hash all alternatives", Take([&] { HashReference(m_list); })};
        Print(reference, m_count);
        qint64 pairs = 0;
        // A list of this kind has pairs without end; as many as entries are visited.
        Print({"find next duplicate, whole list", Take([&] { pairs = WalkDuplicates(m_list, m_count); })},
            m_count, reference, 2);
        CWordList list;
        int merged = 0;
        Print({"merge all", Take([&] { merged = list.MergeAll(); }, [&] { list = m_list; })}, m_count,
            reference, 2);
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
        const Row reference = {"(d) copy a vector of shared pointers",
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
    CWordList m_list;
    QString m_ansi;
    QString m_unicode;
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
