// SPDX-License-Identifier: MIT
#include "commandline/words_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "dictionaries/dictionary_words.h"
#include "dictionaries/installed_dictionaries.h"
#include "document/text_numbers.h"
#include "model/term_syntax.h"

namespace {

constexpr int MostBeginnings = 1000;

constexpr Option Options[] = {{.name = "beginning", .kind = Option::Kind::Flag, .help = Text::OptionBeginning},
    {.name = "dictionaries", .kind = Option::Kind::Text, .help = Text::OptionDictionaries},
    {.name = "output", .kind = Option::Kind::Text, .help = Text::OptionOutput}, ToOption, UnicodeOption,
    ForceOption};

/// Opens the dictionary from one language into another; tells when there is none.
bool OpenDictionary(CDictionary &dictionary, const CArguments &arguments, const VerbServices &services)
{
    const CLanguageNames languages;
    const auto installed =
        FindDictionaries(DictionaryFolders(arguments.Text("dictionaries").value_or(QString())), languages);
    const InstalledDictionary *const found =
        DictionaryFor(installed, languages, arguments.Files().at(0), arguments.Files().at(1));
    if (found == nullptr) {
        QStringList names;
        for (const InstalledDictionary &known : installed) {
            names.append(known.name);
        }
        Tell(services, names.isEmpty() ? Text::NoDictionaries : Text::NoSuchDictionary,
            arguments.Files().mid(0, 2) << names.join(QStringLiteral(", ")));
        return false;
    }
    if (!dictionary.Open(found->index, found->text)) {
        Tell(services, Text::CannotOpen, {found->index});
        return false;
    }
    return true;
}

}

std::span<const Option> WordsOptions()
{
    return Options;
}

VerbResult RunWords(const CArguments &arguments, const VerbServices &services)
{
    const std::optional<QString> file = arguments.Text("output");
    const CListOutput output(file.value_or(StandardStream.toString()), arguments, services);
    CDictionary dictionary;
    if (!output.MayWrite() || !OpenDictionary(dictionary, arguments, services)) {
        return VerbResult::Failed;
    }
    CWordList list;
    list.SetLanguage(0, arguments.Files().at(0));
    list.SetLanguage(1, arguments.Files().at(1));
    CConsole &console = services.console;
    bool anyFound = false;
    const auto lookUp = [&](const QString &term) {
        const DictionaryWords words = LookUpWords(dictionary,
            {.texts = {term},
                .match = arguments.Has("beginning") ? HeadwordMatch::Beginning : HeadwordMatch::Whole,
                .most = MostBeginnings});
        for (const DictionaryEntry &found : words.entries) {
            const CWordEntry entry(found.headword, found.translations.join(AlternativeJoint));
            if (file) {
                list.Insert(entry);
            } else {
                console.Print(ShownInLine(entry.GetText(0)) + QStringLiteral(" = ")
                    + ShownInLine(entry.GetText(1)) + u'\n');
            }
        }
        for (const QString &missing : words.notFound) {
            Tell(services, Text::NoTranslation, {missing});
        }
        anyFound = anyFound || !words.entries.empty();
    };
    for (const QString &term : arguments.Files().sliced(2)) {
        lookUp(term);
    }
    if (arguments.Files().size() == 2) {
        while (const auto line = console.ReadLine()) {
            lookUp(*line);
        }
    }
    if (!anyFound) {
        return VerbResult::Found;
    }
    return !file || output.Write(list) ? VerbResult::Done : VerbResult::Failed;
}
