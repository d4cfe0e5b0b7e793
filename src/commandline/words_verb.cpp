// SPDX-License-Identifier: MIT
#include "commandline/words_verb.h"

#include "commandline/list_files.h"
#include "commandline/options.h"
#include "dictionaries/dictionary.h"
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

/// Looks terms up and calls `take` with each entry that is found. Returns whether any was.
class CLookUp
{
public:
    using Take = std::function<void(const CWordEntry &)>;

    CLookUp(CDictionary &dictionary, bool byBeginning, const VerbServices &services, Take take)
        : m_dictionary(dictionary), m_byBeginning(byBeginning), m_services(services), m_take(std::move(take))
    {
    }

    void LookUp(const QString &given)
    {
        const QString term = NormalizeTerm(given);
        const bool anyBefore = std::exchange(m_anyFound, false);
        if (term.isEmpty()) {
            m_anyFound = anyBefore;
            return;
        }
        if (m_byBeginning) {
            for (const DictionaryEntry &entry : m_dictionary.TranslateBeginning(term, MostBeginnings)) {
                TakeEntry(entry.headword, entry.translations);
            }
        } else {
            TakeEntry(term, m_dictionary.Translate(term));
        }
        if (!m_anyFound) {
            Tell(m_services, Text::NoTranslation, {term});
        }
        m_anyFound = m_anyFound || anyBefore;
    }
    bool AnyFound() const { return m_anyFound; }

private:
    void TakeEntry(const QString &term, const QStringList &translations)
    {
        if (!translations.isEmpty()) {
            m_anyFound = true;
            m_take(CWordEntry(term, translations.join(AlternativeJoint)));
        }
    }

    CDictionary &m_dictionary;
    bool m_byBeginning;
    const VerbServices &m_services;
    Take m_take;
    bool m_anyFound = false;
};

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
    CLookUp lookUp(dictionary, arguments.Has("beginning"), services, [&](const CWordEntry &entry) {
        if (file) {
            list.Insert(entry);
        } else {
            console.Print(
                ShownInLine(entry.GetText(0)) + QStringLiteral(" = ") + ShownInLine(entry.GetText(1)) + u'\n');
        }
    });
    for (const QString &term : arguments.Files().sliced(2)) {
        lookUp.LookUp(term);
    }
    if (arguments.Files().size() == 2) {
        while (const auto line = console.ReadLine()) {
            lookUp.LookUp(*line);
        }
    }
    if (!lookUp.AnyFound()) {
        return VerbResult::Found;
    }
    return !file || output.Write(list) ? VerbResult::Done : VerbResult::Failed;
}
