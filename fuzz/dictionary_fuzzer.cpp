// SPDX-License-Identifier: MIT
#include "dictionaries/article.h"
#include "dictionaries/dictionary_words.h"
#include "fileformats/formats.h"
#include "model/word_list.h"
#include "require.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

void Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

}

/// Takes any bytes as the two files of a dictionary, one behind the other: the first byte says where the second
/// begins, in parts of 255, and whether that is compressed.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    const qsizetype cut = bytes.size() * data[0] / 255;
    Require(TranslationsIn(bytes).size() <= 30);
    static const QTemporaryDir folder;
    const QString index = folder.filePath(QStringLiteral("d.index"));
    const QString plain = folder.filePath(QStringLiteral("d.dict"));
    const QString compressed = folder.filePath(QStringLiteral("d.dict.dz"));
    const bool isCompressed = data[0] % 2 == 0;
    const QString &text = isCompressed ? compressed : plain;
    QFile::remove(isCompressed ? plain : compressed);
    Write(index, bytes.first(cut));
    Write(text, bytes.sliced(cut));
    CDictionary dictionary;
    const bool isOpen = dictionary.Open(index, text);
    if (isOpen) {
        dictionary.Translate(QStringLiteral("a*b*horse*a horse"));
        for (const HeadwordMatch match : {HeadwordMatch::Beginning, HeadwordMatch::Part}) {
            const DictionaryWords words =
                LookUpWords(dictionary, {.texts = {QStringLiteral("a")}, .match = match, .most = 10});
            Require(words.entries.size() <= 10);
            for (const DictionaryEntry &entry : words.entries) {
                Require(entry.translations.size() <= 50);
            }
        }
    }
    if (data[0] % 16 < 2) { // Seldom: the names of all languages are loaded for it.
        CWordList list;
        constexpr int Most = 20;
        const FormatReadOptions options = {
            .format = &FormatOf(FormatId::Dictionary), .dictionary = {.all = true, .most = Most}};
        Require(IsRefused(ReadListFile(list, index, options).result) != isOpen && list.Count() <= Most);
    }
    return 0;
}
