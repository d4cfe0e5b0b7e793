// SPDX-License-Identifier: MIT
#include "fileformats/dictionary_format.h"

#include "dictionaries/installed_dictionaries.h"
#include "fileformats/foreign_entries.h"
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
    const DictionaryWords words = LookUpWords(dictionary, options.dictionary,
        [&options](int /*entries*/) { return options.keepGoing == nullptr || *options.keepGoing; });
    losses.Add(LossKind::Rows, words.withoutTranslations);
    Append(words, options.dictionary.match, options.terms, list, losses);
    return ReadResult::Read;
}

void DictionaryFormat::Append(const DictionaryWords &words, HeadwordMatch match, const TermOptions &options,
    CWordList &list, CLossCounter &losses)
{
    CForeignEntries entries(options, losses);
    for (const DictionaryEntry &entry : words.entries) {
        const QString translations = entry.translations.join(AlternativeJoint);
        if (match == HeadwordMatch::Whole) {
            CWordEntry made = entries.Make({.term1 = {}, .term2 = translations});
            made.SetTerm(entry.headword, 0); // As it is in lists.
            list.Insert(std::move(made));
        } else {
            list.Insert(entries.Make({.term1 = entry.headword, .term2 = translations}));
        }
    }
}
