// SPDX-License-Identifier: MIT
#include "fileformats/formats.h"
#include "fileformats/import_preview.h"
#include "model/word_list.h"
#include "require.h"

#include <QBuffer>

namespace {

QByteArray Written(const CWordList &list, const Format &format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Require(WriteListDevice(list, buffer, format));
    return buffer.data();
}

/// What a format that has no place for flags brings back of an entry.
bool HasTextsOf(const CWordEntry &read, const CWordEntry &written)
{
    const CWordEntry normal(written.GetText(0), written.GetText(1), written.GetNote());
    return read.GetText(0) == normal.GetText(0) && read.GetText(1) == normal.GetText(1);
}

}

/// Reads bytes as the format that the first byte chooses, or as whatever they look like; what was read and can
/// be written without loss of characters comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    const auto formats = Formats();
    const size_t chosen = data[0] % (formats.size() + 1);
    FormatReadOptions options;
    options.format = chosen < formats.size() ? &formats[chosen] : nullptr;
    options.terms = {.semicolonsSeparate = (data[0] & 0x80) != 0,
        .commasSeparate = (data[0] & 0x40) != 0,
        .slashesSeparate = true,
        .roundBracketsAreComments = (data[0] & 0x20) != 0};
    CWordList list;
    const FormatReading reading = ReadListBytes(list, bytes, options);
    for (const FormatLoss &loss : reading.losses) {
        Require(loss.count > 0 && int(loss.kind) < LossKinds);
    }
    if (IsRefused(reading.result)) {
        Require(list.Count() == 0);
        return 0;
    }
    for (const FormatId id : {FormatId::SeparatedText, FormatId::Kvtml, FormatId::AnkiText}) {
        const Format &format = FormatOf(id);
        bool holdsCharacters = true;
        for (const FormatLoss &loss : LossesOf(list, format)) {
            holdsCharacters = holdsCharacters && loss.kind != LossKind::Characters;
        }
        CWordList again;
        FormatReadOptions same = {.format = &format};
        if (id == FormatId::SeparatedText) {
            same.separated = SeparatedTextOptions{.columns = {TextColumn::Term1, TextColumn::Term2}};
        }
        Require(!IsRefused(ReadListBytes(again, Written(list, format), same).result));
        if (holdsCharacters) {
            Require(again.Count() == list.Count() - list.CountWithoutTerms());
            for (int index = 0, of = 0; index < list.Count(); ++index) {
                Require(!list.Entry(index).HasTerm() || HasTextsOf(again.Entry(of++), list.Entry(index)));
            }
        }
    }
    CImportPreview preview;
    preview.OpenText(QString::fromUtf8(bytes));
    preview.SetColumn(0, TextColumn::Term2);
    Require(int(preview.Rows().size()) <= CImportPreview::MostRows);
    return 0;
}
