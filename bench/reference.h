// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What the program is measured against: the heart of each work on standard containers and ICU alone, without
/// the toolkit and without the model. It reads and writes the layout of version 2.3 and trusts what it reads.
namespace Reference {

struct Entry
{
    std::array<std::u16string, 3> texts; // Both terms and the note.
    std::array<std::vector<std::u16string>, 2> alternatives;
    std::array<bool, 2> flags = {};
};
using Entries = std::vector<std::unique_ptr<Entry>>;

/// Reads the file as a whole, decodes it and cuts it into lines and entries.
Entries Read(const std::string &path, bool unicode);
/// Encodes, checks that nothing was lost, writes, and waits for the disk.
bool Write(const Entries &entries, const std::string &path, bool unicode);
/// The order of the entries by one text: keys of the collation rules, their first eight bytes compared first.
std::vector<int> Sort(const Entries &entries, int text);
/// The number of entries with `needle` in one of their texts, case ignored.
int Find(const Entries &entries, std::u16string_view needle);
/// The number of entries that share an alternative with an earlier one, by a flat hash of views.
int CountDuplicates(const Entries &entries);

}
