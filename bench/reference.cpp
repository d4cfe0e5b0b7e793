// SPDX-License-Identifier: MIT
#include "reference.h"

#include <unicode/uchar.h>
#include <unicode/ucol.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <span>

namespace Reference {

namespace {

constexpr std::array<char16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, //
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, //
};

std::unique_ptr<char[]> ReadBytes(const std::string &path, size_t &size)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || fstat(file, &status) != 0) {
        std::exit(1);
    }
    size = size_t(status.st_size);
    auto bytes = std::make_unique_for_overwrite<char[]>(size);
    if (read(file, bytes.get(), size) != ssize_t(size)) {
        std::exit(1);
    }
    close(file);
    return bytes;
}

/// The decoded text, and its length.
std::unique_ptr<char16_t[]> Decode(std::span<const char> bytes, bool unicode, size_t &length)
{
    length = unicode ? bytes.size() / 2 - 1 : bytes.size();
    auto text = std::make_unique_for_overwrite<char16_t[]>(length);
    if (unicode) {
        std::memcpy(text.get(), bytes.data() + 2, 2 * length);
    } else {
        std::transform(bytes.begin(), bytes.end(), text.get(), [](char character) {
            const auto byte = static_cast<unsigned char>(character);
            return (byte & 0xE0) == 0x80 ? UpperControls[byte & 0x1F] : char16_t(byte);
        });
    }
    return text;
}

std::vector<std::u16string> Split(std::u16string_view term)
{
    std::vector<std::u16string> alternatives;
    while (!term.empty()) {
        const size_t end = std::min(term.find(u'*'), term.size());
        std::u16string_view piece = term.substr(0, end);
        while (piece.starts_with(u' ')) {
            piece.remove_prefix(1);
        }
        while (piece.ends_with(u' ')) {
            piece.remove_suffix(1);
        }
        if (!piece.empty()) {
            alternatives.emplace_back(piece);
        }
        term.remove_prefix(std::min(end + 1, term.size()));
    }
    return alternatives;
}

/// The byte of a character of the code page, or 0 and a mark that something was lost.
char Encode(char16_t unit, bool &lossy)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        return char(unit);
    }
    const auto *const found = std::find(UpperControls.begin(), UpperControls.end(), unit);
    lossy = lossy || found == UpperControls.end();
    return char(0x80 + (found - UpperControls.begin()));
}

/// Lines in a buffer of known size.
class CBuffer
{
public:
    CBuffer(size_t mostBytes, bool unicode)
        : m_bytes(std::make_unique_for_overwrite<char[]>(mostBytes)), m_unicode(unicode)
    {
    }

    void Line(std::u16string_view text)
    {
        Put(text);
        Put(u"\r\n");
    }
    std::span<const char> Bytes() const { return {m_bytes.get(), m_size}; }
    bool Lossy() const { return m_lossy; }

private:
    void Put(std::u16string_view text)
    {
        char *next = m_bytes.get() + m_size;
        if (m_unicode) {
            std::memcpy(next, text.data(), 2 * text.size());
            m_size += 2 * text.size();
            return;
        }
        bool lossy = false;
        for (const char16_t unit : text) {
            *next++ = Encode(unit, lossy);
        }
        m_size += text.size();
        m_lossy = m_lossy || lossy;
    }

    std::unique_ptr<char[]> m_bytes;
    size_t m_size = 0;
    bool m_unicode;
    bool m_lossy = false;
};

std::u16string Number(size_t number)
{
    const std::string digits = std::to_string(number);
    return std::u16string(digits.begin(), digits.end());
}

const UChar *Units(const std::u16string &text)
{
    return reinterpret_cast<const UChar *>(text.data());
}

}

Entries Read(const std::string &path, bool unicode)
{
    size_t size = 0;
    size_t length = 0;
    const auto bytes = ReadBytes(path, size);
    const auto text = Decode({bytes.get(), size}, unicode, length);
    std::u16string_view rest(text.get(), length);
    const auto line = [&rest] {
        const size_t end = std::min(rest.find(u'\r'), rest.size());
        const std::u16string_view found = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 2, rest.size()));
        return found;
    };
    for (int header = 0; header < 11; ++header) {
        line();
    }
    Entries entries;
    while (!rest.empty()) {
        auto entry = std::make_unique<Entry>();
        const std::u16string_view flags = line();
        entry->flags = {flags.starts_with(u'1'), flags.ends_with(u'1')};
        for (std::u16string &field : entry->texts) {
            field = line();
        }
        for (const size_t language : {0u, 1u}) {
            entry->alternatives[language] = Split(entry->texts[language]);
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool Write(const Entries &entries, const std::string &path, bool unicode)
{
    size_t units = 1000; // Enough for the header.
    for (const auto &entry : entries) {
        units += entry->texts[0].size() + entry->texts[1].size() + entry->texts[2].size() + 11;
    }
    CBuffer buffer(2 * units, unicode);
    for (const std::u16string &text :
        {std::u16string(u"Ordelin 2.3"), std::u16string(), std::u16string(), std::u16string(u"Svenska"),
            std::u16string(u"Engelska"), Number(entries.size()), std::u16string(u"0"), std::u16string(),
            std::u16string(u"0"), std::u16string(), std::u16string()}) {
        buffer.Line(text);
    }
    for (const auto &entry : entries) {
        const char16_t flags[] = {entry->flags[0] ? u'1' : u'0', u' ', entry->flags[1] ? u'1' : u'0'};
        buffer.Line({flags, 3});
        for (const std::u16string &text : entry->texts) {
            buffer.Line(text);
        }
    }
    const std::string temporary = path + ".new";
    const int file = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool written = !buffer.Lossy() && file >= 0
        && write(file, buffer.Bytes().data(), buffer.Bytes().size()) == ssize_t(buffer.Bytes().size())
        && fsync(file) == 0;
    close(file);
    return written && rename(temporary.c_str(), path.c_str()) == 0;
}

std::vector<int> Sort(const Entries &entries, int text)
{
    struct Item
    {
        uint64_t prefix;
        size_t key;
        int index;
    };
    UErrorCode status = U_ZERO_ERROR;
    UCollator *collator = ucol_open("sv", &status);
    ucol_setStrength(collator, UCOL_SECONDARY);
    std::vector<uint8_t> keys;
    std::vector<Item> items;
    items.reserve(entries.size());
    for (size_t index = 0; index < entries.size(); ++index) {
        const std::u16string &field = entries[index]->texts[size_t(text)];
        const size_t start = keys.size();
        keys.resize(start + 3 * field.size() + 16);
        const int room = int(keys.size() - start);
        const int size = ucol_getSortKey(collator, Units(field), int(field.size()), keys.data() + start, room);
        keys.resize(start + size_t(size));
        uint64_t prefix = 0;
        for (size_t i = 0; i < sizeof prefix; ++i) {
            prefix = prefix << 8 | (i < size_t(size) ? keys[start + i] : 0u);
        }
        items.push_back({prefix, start, int(index)});
    }
    ucol_close(collator);
    std::sort(items.begin(), items.end(), [&keys](const Item &a, const Item &b) {
        return a.prefix != b.prefix ? a.prefix < b.prefix
                                    : std::strcmp(reinterpret_cast<const char *>(keys.data() + a.key),
                                          reinterpret_cast<const char *>(keys.data() + b.key))
                < 0;
    });
    std::vector<int> order;
    order.reserve(items.size());
    for (const Item &item : items) {
        order.push_back(item.index);
    }
    return order;
}

int Find(const Entries &entries, std::u16string_view needle)
{
    std::vector<char16_t> fold(0x10000);
    std::iota(fold.begin(), fold.end(), char16_t(0));
    for (char16_t &unit : fold) {
        unit = char16_t(u_foldCase(UChar32(unit), U_FOLD_CASE_DEFAULT));
    }
    std::u16string folded(needle);
    for (char16_t &unit : folded) {
        unit = fold[unit];
    }
    const auto equal = [&fold](char16_t a, char16_t b) { return fold[a] == b; };
    return int(std::count_if(entries.begin(), entries.end(), [&](const auto &entry) {
        return std::any_of(entry->texts.begin(), entry->texts.end(), [&](const std::u16string &text) {
            return std::search(text.begin(), text.end(), folded.begin(), folded.end(), equal) != text.end();
        });
    }));
}

int CountDuplicates(const Entries &entries)
{
    int duplicates = 0;
    for (const size_t language : {0u, 1u}) {
        size_t words = 0;
        for (const auto &entry : entries) {
            words += entry->alternatives[language].size();
        }
        size_t slots = 16;
        while (slots < 2 * words) {
            slots *= 2;
        }
        std::vector<std::u16string_view> table(slots);
        for (const auto &entry : entries) {
            bool shared = false;
            for (const std::u16string &word : entry->alternatives[language]) {
                size_t slot = std::hash<std::u16string_view>()(word) & (slots - 1);
                while (!table[slot].empty() && table[slot] != word) {
                    slot = (slot + 1) & (slots - 1);
                }
                shared = shared || !table[slot].empty();
                table[slot] = word;
            }
            duplicates += int(shared);
        }
    }
    return duplicates;
}

}
