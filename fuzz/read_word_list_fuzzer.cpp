// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "model/term_syntax.h"
#include "model/word_list.h"
#include "require.h"

#include <QBuffer>

namespace {

bool HasTerm(const CWordEntry &entry)
{
    return !entry.GetText(0).isEmpty() || !entry.GetText(1).isEmpty();
}

/// Whether `read` is what reading `written` must give: the texts in normal form, the rest as it was.
bool IsReadFrom(const CWordEntry &read, const CWordEntry &written)
{
    return read.GetText(0) == NormalizeTerm(written.GetText(0))
        && read.GetText(1) == NormalizeTerm(written.GetText(1)) && read.GetNote() == written.GetNote()
        && read.GetFlag(0) == written.GetFlag(0) && read.GetFlag(1) == written.GetFlag(1);
}

}

/// Reads any bytes as a file, writes the list and reads it again: the same properties and entries must come
/// back.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QBuffer file;
    file.setData(reinterpret_cast<const char *>(data), int(size));
    file.open(QIODevice::ReadOnly);
    CWordList list;
    if (IsRefused(ReadWordList(list, file))) {
        return 0;
    }
    for (const bool forceUnicode : {false, true}) {
        QBuffer written;
        written.open(QIODevice::ReadWrite);
        CWordList copy = list;
        Require(WriteWordList(copy, written, {.forceUnicode = forceUnicode}));
        CWordList again;
        Require(ReadWordList(again, written) == ReadResult::Read);
        Require(again.GetAuthor() == list.GetAuthor() && again.GetComments() == list.GetComments());
        for (const int language : {0, 1}) {
            Require(again.GetLanguage(language) == list.GetLanguage(language));
            Require(again.GetQuestionTemplate(language) == list.GetQuestionTemplate(language));
            Require(again.GetAdaptQuestion(language) == list.GetAdaptQuestion(language));
        }
        int next = 0;
        for (int index = 0; index < list.Count(); ++index) {
            if (HasTerm(list.Entry(index))) { // Entries without terms are written, and skipped on reading.
                Require(next < again.Count() && IsReadFrom(again.Entry(next), list.Entry(index)));
                ++next;
            }
        }
        Require(next == again.Count());
    }
    return 0;
}
