// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "generator.h"
#include "measure.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

// Each format beside the glossary file in the same run. A table with as many entries is aimed at 3 times its
// time.

namespace {

void Require(bool condition)
{
    if (!condition) {
        std::exit(1);
    }
}

}

int main(int argc, char *argv[])
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    if (count <= 0) {
        std::fputs("usage: formats_bench [COUNT]\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    const CWordList list = GenerateList(count, 1);
    double glossary[2] = {};
    std::printf("%d entries\n", count);
    for (const Format *const format : FormatsToSave()) {
        const QString path = folder.filePath(QStringLiteral("list.") + format->suffixes.front());
        const FormatReadOptions options = {.format = format};
        const auto write = [&] { Require(WriteListFile(list, path, *format)); };
        CWordList read;
        constexpr int Repeats = 3;
        const Measurement writing = Measure(
            Repeats, [] {}, write);
        const Measurement reading = Measure(
            Repeats, [&] { read = CWordList(); },
            [&] { Require(!IsRefused(ReadListFile(read, path, options).result)); });
        if (format->id == FormatId::Glossary) {
            glossary[0] = writing.seconds;
            glossary[1] = reading.seconds;
        }
        std::printf(
            "  %-12s write %8.1f ms (%.2f)  read %8.1f ms (%.2f)  %7d entries, peaks %.0f and %.0f MB\n",
            format->key.data(), writing.seconds * 1e3, writing.seconds / glossary[0], reading.seconds * 1e3,
            reading.seconds / glossary[1], read.Count(), double(writing.peakBytes) / 1e6,
            double(reading.peakBytes) / 1e6);
    }
    return 0;
}
