// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>

class CWordList;
class QIODevice;
struct WordListSummary;

/// What became of reading a file.
enum class ReadResult {
    CannotOpen = 0, ///< Not opened, not read to its end, or a foreign file without a vocabulary.
    Read = 1,
    /// Read; a header line held characters that the code page lacks.
    ReadLossy = 2,
    /// A newer version, read by the layout of version 2.3.
    NewerVersion = 3,
    /// Not a word-list file: read as plain text, one term a line.
    PlainText = 4,
    /// Refused: a file above FileLimits, or more than the memory takes.
    TooLarge = 5,
    /// Refused: a line longer than CTextFileReader reads.
    LineTooLong = 6,
    /// Refused: no text but a picture, a sound, a packed file or the like.
    Binary = 7,
    /// Refused: the file breaks the rules of its format.
    Damaged = 8,
    /// Refused: too much to be read whole; nothing was chosen of it.
    NothingChosen = 9,
};

/// Whether nothing was read, so that there is no list to show.
constexpr bool IsRefused(ReadResult result)
{
    return result == ReadResult::CannotOpen || result >= ReadResult::TooLarge;
}

/// What is opened at most, so that a file that is no list can't take all memory and time.
namespace FileLimits {

inline constexpr qint64 MostBytes = qint64(512) * 1024 * 1024;
inline constexpr int MostEntries = 20'000'000;

}

/// Set to false, from any thread, it stops a reading between two records.
using KeepGoing = std::atomic<bool>;

/// Replaces the content of `list` by that of a glossary file of any version, of a foreign vocabulary file or of
/// plain text; `keepGoing` may be null. Neither counts nor lengths in the file are trusted. The list is empty
/// when the file is refused.
[[nodiscard]] ReadResult ReadWordListFile(
    CWordList &list, const QString &path, const KeepGoing *keepGoing = nullptr);
/// The same from an open, random-access device.
[[nodiscard]] ReadResult ReadWordList(CWordList &list, QIODevice &device, const KeepGoing *keepGoing = nullptr);

/// What the file says of itself, and how many entries ReadWordListFile() would read; none is kept.
[[nodiscard]] ReadResult ReadWordListSummary(
    WordListSummary &summary, const QString &path, const KeepGoing *keepGoing = nullptr);

struct WriteOptions
{
    /// Write UTF-16 even where the code page holds every text.
    bool forceUnicode = false;
    /// Where the old file lies while it is overwritten in place; empty: no file is (see CSafeFile).
    QString backupFolder = {};
};

/// Writes the smallest version that holds the list, in the code page when it holds every text and in UTF-16
/// little endian otherwise, and sets the list's saved mark. Returns false when anything failed, or when the
/// file would be one that is refused on opening; the file and the mark are then what they were.
[[nodiscard]] bool WriteWordListFile(CWordList &list, const QString &path, const WriteOptions &options = {});
/// The same to an open device.
[[nodiscard]] bool WriteWordList(CWordList &list, QIODevice &device, const WriteOptions &options = {});
