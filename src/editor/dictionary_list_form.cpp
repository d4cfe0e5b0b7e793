// SPDX-License-Identifier: MIT
#include "editor/dictionary_list_form.h"

#include "dictionaries/dictionary_choices.h"
#include "document/loss_texts.h"
#include "document/text_numbers.h"
#include "document/win32_doc.h"
#include "editor/editor_view.h"
#include "editor/inserted_entries.h"
#include "editor/text_numbers.h"
#include "fileformats/dictionary_format.h"
#include "platform/local_formats.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "settings/dictionary_settings.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

/// What is written or pasted, without blank lines and no more than is looked up.
QStringList LinesOf(const QString &text, int most)
{
    QStringList lines;
    for (const QStringView part : QStringView(text).split(u'\n')) {
        const QStringView line = part.trimmed();
        if (!line.isEmpty() && lines.size() <= most) {
            lines.append(line.toString());
        }
    }
    return lines;
}

/// The dictionary that is used between the languages of the list, in one direction or the other; the first one
/// where there is none.
int UsualDictionary(const std::vector<InstalledDictionary> &dictionaries, const CLanguageNames &names,
    const CWordList &list, const CDictionaryChoices &choices)
{
    for (const int from : {0, 1}) {
        const QString &source = list.GetLanguage(from);
        const QString &target = list.GetLanguage(1 - from);
        const InstalledDictionary *const guessed = DictionaryFor(dictionaries, names, source, target);
        const QString name =
            choices.Chosen(source, target).value_or(guessed != nullptr ? guessed->name : QString());
        const auto found = std::ranges::find(dictionaries, name, &InstalledDictionary::name);
        if (found != dictionaries.end()) {
            return int(found - dictionaries.begin());
        }
    }
    return 0;
}

bool KnowsLanguages(const InstalledDictionary &dictionary)
{
    return !dictionary.from.isEmpty() && !dictionary.to.isEmpty();
}

}

CDictionaryListForm::CDictionaryListForm(
    CWin32Doc &document, const DictionarySettings &settings, const CTexts &texts)
    : m_document(document), m_texts(texts)
{
    const CLanguageNames names;
    m_dictionaries = FindDictionaries(DictionaryFolders(settings.folder), names);
    const CWordList &list = document.List();
    for (const int language : {0, 1}) {
        m_languages[size_t(language)] = names.CodeOf(list.GetLanguage(language));
    }
    m_dictionary = UsualDictionary(m_dictionaries, names, list, CDictionaryChoices(settings.chosen));
    if (!m_dictionaries.empty()) {
        ChooseUsualSide();
    }
    connect(&m_thread, &CWordsThread::MessagesWaiting, this, &CDictionaryListForm::TakeMessages,
        Qt::QueuedConnection);
}

QStringList CDictionaryListForm::Dictionaries() const
{
    QStringList shown;
    for (const InstalledDictionary &dictionary : m_dictionaries) {
        const QString name = ShownShort(dictionary.name);
        shown.append(KnowsLanguages(dictionary) ? m_texts.Fill(Text::DictionaryListLanguages,
                         {CLanguageNames::NameOf(dictionary.from), CLanguageNames::NameOf(dictionary.to), name})
                                                : name);
    }
    return shown;
}

void CDictionaryListForm::ChooseDictionary(int index)
{
    if (index >= 0 && index < int(m_dictionaries.size()) && index != m_dictionary) {
        m_dictionary = index;
        ChooseUsualSide();
        LookUp();
    }
}

void CDictionaryListForm::ChooseMatch(int index)
{
    m_filter.match = HeadwordMatch(std::clamp(index, 0, int(HeadwordMatch::Part)));
    LookUp();
}

void CDictionaryListForm::ChooseText(const QString &text)
{
    QStringList lines = LinesOf(text, m_filter.most);
    if (lines != m_filter.texts) {
        m_filter.texts = std::move(lines);
        LookUp();
    }
}

std::optional<int> CDictionaryListForm::SideOfLanguages() const
{
    const InstalledDictionary &dictionary = m_dictionaries[size_t(m_dictionary)];
    for (const int side : {0, 1}) {
        if (KnowsLanguages(dictionary) && dictionary.from == m_languages[size_t(side)]
            && dictionary.to == m_languages[size_t(1 - side)]) {
            return side;
        }
    }
    return {};
}

bool CDictionaryListForm::TakesLanguages() const
{
    return m_document.List().Count() == 0 && KnowsLanguages(m_dictionaries[size_t(m_dictionary)])
        && !SideOfLanguages();
}

bool CDictionaryListForm::CanChooseSide() const
{
    return !SideOfLanguages() && !TakesLanguages();
}

void CDictionaryListForm::ChooseUsualSide()
{
    // One of the languages may tell it, where the other has a name of its own.
    const InstalledDictionary &dictionary = m_dictionaries[size_t(m_dictionary)];
    const bool isCrossed = !TakesLanguages() && KnowsLanguages(dictionary)
        && (dictionary.from == m_languages[1] || dictionary.to == m_languages[0]);
    m_side = SideOfLanguages().value_or(int(isCrossed));
}

void CDictionaryListForm::ChooseSide(int column)
{
    if (CanChooseSide() && (column == 0 || column == 1)) {
        m_side = column;
        MakeEntries();
        Q_EMIT Changed();
    }
}

QString CDictionaryListForm::LanguageOf(int column) const
{
    const InstalledDictionary &dictionary = m_dictionaries[size_t(m_dictionary)];
    return TakesLanguages() ? CLanguageNames::NameOf(column == 0 ? dictionary.from : dictionary.to)
                            : m_document.List().GetLanguage(column);
}

void CDictionaryListForm::LookUp()
{
    ++m_number;
    m_found = 0;
    m_isAsking = !m_filter.IsEmpty();
    m_isWaiting = m_isAsking;
    if (!m_isAsking) {
        m_words = {};
        MakeEntries();
    }
    if (m_isThreadBusy) {
        m_thread.Stop(false); // Nobody wants that any more.
    } else {
        LookUpNext();
    }
    Q_EMIT Changed();
}

void CDictionaryListForm::LookUpNext()
{
    if (std::exchange(m_isWaiting, false)) {
        m_isThreadBusy = true;
        const InstalledDictionary &dictionary = m_dictionaries[size_t(m_dictionary)];
        m_thread.LookUp({m_number, dictionary.index, dictionary.text, m_filter});
    }
}

void CDictionaryListForm::TakeMessages()
{
    for (WordsMessage &message : m_thread.TakeMessages()) {
        if (message.isEnd) {
            m_isThreadBusy = false;
        }
        if (message.number != m_number) {
            continue;
        }
        m_found = message.entries;
        if (message.isEnd) {
            m_isAsking = false;
            m_canRead = message.canRead;
            m_words = std::move(message.words);
            MakeEntries();
        }
    }
    if (!m_isThreadBusy) {
        LookUpNext();
    }
    Q_EMIT Changed();
}

void CDictionaryListForm::MakeEntries()
{
    CWordList list;
    CLossCounter losses;
    DictionaryFormat::Append(m_words, m_filter.match, {}, list, losses);
    if (m_side == 1) {
        std::vector<int> all(size_t(list.Count()));
        std::iota(all.begin(), all.end(), 0);
        list.SwapInEntries(all, true, true, 0, 1);
    }
    m_entries = std::move(list);
    m_losses = losses.Losses();
}

QString CDictionaryListForm::NotFound() const
{
    constexpr qsizetype Most = 5;
    constexpr qsizetype Longest = 30; // In code units.
    QStringList shown;
    for (const QString &text : m_words.notFound.first(std::min(Most, m_words.notFound.size()))) {
        shown.append(Isolated(ShownShort(text, Longest)));
    }
    const QString texts = shown.join(QStringLiteral(", "));
    const qsizetype others = m_words.notFound.size() - shown.size();
    return others == 0 ? texts : m_texts.Fill(Text::DictionaryListOthers, {texts, FormatNumber(others)});
}

QString CDictionaryListForm::Summary() const
{
    if (m_filter.IsEmpty()) {
        return m_texts.Get(Text::DictionaryListNothing);
    }
    if (m_isAsking) {
        return m_texts.Fill(Text::DictionaryListSearching, {FormatNumber(m_found)});
    }
    if (!m_canRead) {
        return m_texts.Get(Text::DictionaryListUnreadable);
    }
    QStringList sentences = {m_texts.Fill(Text::DictionaryListFound, {FormatNumber(m_entries.Count())})};
    if (m_words.hasMore) {
        sentences.append(m_texts.Fill(Text::DictionaryListMore, {FormatNumber(m_filter.most)}));
    }
    if (!m_words.notFound.isEmpty()) {
        sentences.append(m_texts.Fill(Text::DictionaryListNotFound, {NotFound()}));
    }
    if (!m_losses.empty()) {
        sentences.append(m_texts.Fill(Text::PreviewLosses, {LossesAsText(m_losses, m_texts, u"; ")}));
    }
    if (TakesLanguages() && CanInsert()) {
        sentences.append(m_texts.Fill(Text::DictionaryListTakesLanguages, {LanguageOf(0), LanguageOf(1)}));
    }
    return sentences.join(u' ');
}

void CDictionaryListForm::Insert(IEditorView &view) const
{
    if (!CanInsert()) {
        return;
    }
    const bool takesLanguages = TakesLanguages();
    const std::array languages = {LanguageOf(0), LanguageOf(1)};
    InsertEntries(m_entries, view.InsertionPoint(), m_document, view, [&](CWordList &list) {
        for (int language = 0; takesLanguages && language < 2; ++language) {
            list.SetLanguage(language, languages[size_t(language)]);
        }
    });
    view.UpdateStatusText(m_texts.Fill(Text::EntriesFromDictionary, {FormatNumber(m_entries.Count())}));
}
