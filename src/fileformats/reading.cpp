// SPDX-License-Identifier: MIT
#include "fileformats/reading.h"

#include "fileformats/glossary_version.h"
#include "fileformats/text_file_reader.h"

std::optional<ReadResult> FailureOf(const CTextFileReader &reader, int entries)
{
    if (reader.Failed()) {
        return ReadResult::CannotOpen;
    }
    if (reader.LineTooLong()) {
        return ReadResult::LineTooLong;
    }
    if (entries > FileLimits::MostEntries) {
        return ReadResult::TooLarge;
    }
    return std::nullopt;
}

int CountRecords(CTextFileReader &reader, const GlossaryVersion &version, const KeepGoing *keepGoing)
{
    int count = 0;
    QStringView line;
    while ((keepGoing == nullptr || *keepGoing) && count <= FileLimits::MostEntries) {
        if ((version.hasFlagLine && !reader.ReadLine(line)) || !reader.ReadLine(line)) {
            break;
        }
        bool hasTerm = !line.isEmpty();
        if (!reader.ReadLine(line)) {
            break;
        }
        hasTerm = hasTerm || !line.isEmpty();
        if (version.hasNote && !reader.ReadLine(line)) {
            break;
        }
        count += int(hasTerm);
    }
    return count;
}
