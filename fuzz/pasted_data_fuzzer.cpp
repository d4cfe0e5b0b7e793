// SPDX-License-Identifier: MIT
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "model/term_syntax.h"
#include "require.h"

#include <QMimeData>

#include <array>
#include <numeric>
#include <vector>

/// Pastes any bytes in each of the forms that are known, chosen by the first byte. The entries have terms in
/// normal form, and what is copied of them is pasted as so many entries.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr std::array Forms = {"application/x-ornbury-workshops-ordelin-2.3-unicode",
        "application/x-ornbury-workshops-ordelin-2.3", "text/plain", "text/plain;charset=windows-1252",
        "text/uri-list"};
    if (size == 0) {
        return 0;
    }
    QMimeData pasted;
    pasted.setData(QString::fromLatin1(Forms.at(data[0] % Forms.size())),
        QByteArray(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1)));
    const CWordList list = EntriesFromData(pasted);
    std::vector<int> entries(size_t(list.Count()));
    std::iota(entries.begin(), entries.end(), 0);
    bool hasBreaks = false;
    for (const int index : entries) {
        for (const int field : {0, 1, 2}) {
            hasBreaks = hasBreaks || list.Entry(index).GetField(field).contains(u'\n');
        }
    }
    const CWordList again = EntriesFromData(*ClipboardDataOf(list, entries, AllColumns));
    Require(hasBreaks || again.Count() == list.Count());
    return 0;
}
