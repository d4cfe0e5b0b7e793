// SPDX-License-Identifier: MIT
#include "fileformats/dictionary_format.h"

#include "dictionaries/dictionary.h"
#include "dictionaries/installed_dictionaries.h"
#include "fileformats/foreign_entries.h"
#include "fileformats/reading.h"
#include "model/term_syntax.h"
#include "model/word_list.h"

#include <QFileInfo>

#include <algorithm>

namespace {

/// Both files of the dictionary to which the file at `path` belongs; none when it belongs to none.
std::optional<InstalledDictionary> DictionaryOf(const QString &path)
{
    const QFileInfo file(path);
    for (const InstalledDictionary &dictionary : FindDictionaries({file.path()}, CLanguageNames())) {
        if (QFileInfo(dictionary.index) == file || QFileInfo(dictionary.text) == file) {
            return dictionary;
        }
    }
    return std::nullopt;
}

std::vector<DictionaryEntry> Chosen(CDictionary &dictionary, const DictionaryFilter &filter)
{
    if (!filter.terms.isEmpty()) {
        std::vector<DictionaryEntry> entries;
        for (const QString &term : filter.terms.first(std::min<qsizetype>(filter.terms.size(), filter.most))) {
            entries.push_back({term, dictionary.Translate(term)});
        }
        return entries;
    }
    return filter.prefix.isEmpty() ? dictionary.TranslateAll(filter.most)
                                   : dictionary.TranslateBeginning(filter.prefix, filter.most);
}

}

bool DictionaryFormat::Recognises(const FormatSample &sample, FormatSource &source)
{
    const auto suffixes = FormatOf(FormatId::Dictionary).suffixes;
    return !source.path.isEmpty() && std::ranges::any_of(suffixes, [&sample](QLatin1StringView suffix) {
        return sample.suffix == suffix;
    }) && DictionaryOf(source.path);
}

ReadResult DictionaryFormat::Read(
    CWordList &list, FormatSource &source, const FormatReadOptions &options, CLossCounter &losses)
{
    const auto files = source.path.isEmpty() ? std::nullopt : DictionaryOf(source.path);
    if (!files) {
        return ReadResult::CannotOpen;
    }
    if (options.dictionary.IsEmpty()) {
        return ReadResult::NothingChosen;
    }
    CDictionary dictionary;
    if (!dictionary.Open(files->index, files->text)) {
        return ReadResult::Damaged;
    }
    list.SetProperties({.language1 = CLanguageNames::NameOf(files->from),
        .language2 = CLanguageNames::NameOf(files->to),
        .author = QString(),
        .comments = files->name});
    CForeignEntries entries(options.terms, losses);
    for (const DictionaryEntry &entry : Chosen(dictionary, options.dictionary)) {
        if (!MayGoOn(list, options.keepGoing)) {
            break;
        }
        if (entry.translations.isEmpty()) {
            losses.Add(LossKind::Rows); // Unknown, or an article that only refers to others.
        } else {
            const QString translations = entry.translations.join(AlternativeJoint);
            list.Insert(entries.Make({.term1 = entry.headword, .term2 = translations}));
        }
    }
    return ReadResult::Read;
}
