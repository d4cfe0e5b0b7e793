// SPDX-License-Identifier: MIT
#include "editor/entry_editing.h"

#include "document/win32_doc.h"
#include "editor/arranging.h"
#include "editor/row_model.h"
#include "editor/text_numbers.h"
#include "model/term_syntax.h"
#include "platform/plain_text.h"
#include "platform/user_prompt.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"
#include "settings/shell_settings.h"

#include <algorithm>
#include <utility>

using Action = EditStep::Action;

namespace {

/// How much of a term a question shows, in code units.
constexpr qsizetype MaxAsked = 300;

}

bool HasBothTerms(const EntryTexts &texts)
{
    return !texts[0].isEmpty() && !texts[1].isEmpty();
}

std::optional<CWordEntry> RestAsEntry(const EntryTexts &texts)
{
    CWordEntry entry(texts[0], texts[1], texts[2].trimmed());
    if (entry.GetText(0).isEmpty() && entry.GetText(1).isEmpty()) {
        entry = CWordEntry(texts[2]);
        if (entry.GetText(0).isEmpty()) {
            return std::nullopt;
        }
    }
    return entry;
}

CEntryEditing::CEntryEditing(EntryEditingServices services, IEntryView &view)
    : m_services(services), m_view(view)
{
}

bool CEntryEditing::ConfirmTyped(const PromptText &text, PromptIcon icon)
{
    return m_services.prompt.AskTypist(text, icon, PromptButtons::YesNo, PromptAnswer::Yes)
        == PromptAnswer::Yes;
}

EditStep CEntryEditing::SelectSimilar(int similar) const
{
    // What was typed on was not meant for the entry that was found.
    return {m_services.prompt.TypingGoesOn() ? Action::SelectAndTypeOn : Action::SelectEntry, similar};
}

QString CEntryEditing::Corrected(const QString &term)
{
    if (!m_services.settings.synonymWarning || !m_asking) {
        return term;
    }
    const std::optional<QString> proposal = SuggestTermCorrection(term);
    // A term of brackets alone would become none at all.
    const bool accepted = proposal && !proposal->isEmpty()
        && ConfirmTyped(m_services.texts.Prompt(Text::ProposeCorrection, {ShownShort(*proposal, MaxAsked)}),
            PromptIcon::Information);
    return accepted ? *proposal : term;
}

int CEntryEditing::AskAboutSimilar(int similar)
{
    if (!m_services.settings.duplicateVarning || similar == NoEntry || !m_asking) {
        return NoEntry;
    }
    m_view.MarkEntry(similar);
    const bool accepted = ConfirmTyped(
        m_services.texts.Prompt(Text::SelectSimilar, {QString::number(similar + 1)}), PromptIcon::Question);
    m_view.MarkEntry(NoEntry);
    return accepted ? similar : NoEntry;
}

int CEntryEditing::Add(const EntryTexts &texts)
{
    const EditorSettings &settings = m_services.settings;
    const InsertOptions options = {.checkSimilar = settings.duplicateVarning,
        .position = m_services.rows.InsertionPoint(),
        .sortAfter = settings.sortNewWords,
        .sort = SortOptionsOf(m_services.arrange)};
    int similar = NoEntry;
    m_services.document.Change([&](CWordList &list) {
        similar = list.Insert(
            CWordEntry(texts[0], texts[1], texts[2], settings.newwordflag, settings.newwordflag), options);
    });
    // Below the place where the entry was typed, also when sorting took it elsewhere.
    m_view.SetInsertionPoint(options.position + 1);
    return AskAboutSimilar(similar);
}

EditStep CEntryEditing::FromFields(const EntryTexts &texts, int entry)
{
    EntryTexts wanted = {NormalizeTerm(texts[0]), NormalizeTerm(texts[1]), texts[2]};
    if (wanted[0].isEmpty() && wanted[1].isEmpty()) {
        return {Action::FocusField, m_services.settings.lang1first ? 0 : 1};
    }
    for (const int language : {0, 1}) {
        if (wanted[size_t(language)].isEmpty()) {
            return {Action::FocusField, language};
        }
    }
    const bool adds = entry < 0 || entry >= m_services.document.List().Count();
    const int similar = AddOrChange(std::move(wanted), entry);
    if (similar != NoEntry) {
        return SelectSimilar(similar);
    }
    if (adds) {
        return {Action::ClearFields};
    }
    // The next one is loaded at once, so that a list is gone through quickly.
    return entry + 1 < m_services.document.List().Count() ? EditStep{Action::SelectEntry, entry + 1}
                                                          : EditStep{Action::ClearSelection};
}

int CEntryEditing::AddOrChange(EntryTexts texts, int entry)
{
    for (const size_t language : {0u, 1u}) {
        texts[language] = Corrected(texts[language]);
    }
    if (!texts[2].isEmpty() && !m_services.settings.showNotes) {
        m_view.ShowNotes();
    }
    if (entry < 0 || entry >= m_services.document.List().Count()) {
        return Add(texts);
    }
    int similar = NoEntry;
    m_services.document.Change([&](CWordList &list) {
        similar = list.ReplaceEntry(entry, texts[0], texts[1], texts[2], m_services.settings.duplicateVarning);
    });
    return AskAboutSimilar(similar);
}

EditStep CEntryEditing::StoreFields(const EntryTexts &texts, int entry)
{
    EntryTexts wanted = {NormalizeTerm(texts[0]), NormalizeTerm(texts[1]), texts[2]};
    if (!HasBothTerms(wanted)) {
        return {};
    }
    const int similar = AddOrChange(std::move(wanted), entry);
    return similar != NoEntry ? SelectSimilar(similar) : EditStep{};
}

void CEntryEditing::ClearPending(int field)
{
    m_services.rows.pending[size_t(field)].clear();
    m_view.PendingChanged();
}

EditStep CEntryEditing::StorePending()
{
    if (!HasBothTerms(m_services.rows.pending)) {
        return {};
    }
    const EditStep step = AddPending();
    m_view.PendingChanged();
    return step;
}

void CEntryEditing::AddRest(const EntryTexts &texts)
{
    if (const std::optional<CWordEntry> entry = RestAsEntry(texts)) {
        const bool asking = std::exchange(m_asking, false);
        Add({entry->GetText(0), entry->GetText(1), entry->GetNote()});
        m_asking = asking;
    }
}

void CEntryEditing::ChangeUnasked(int entry, const EntryTexts &texts)
{
    m_services.document.Change(
        [entry, &texts](CWordList &list) { list.ReplaceEntry(entry, texts[0], texts[1], texts[2], false); });
}

EditStep CEntryEditing::CellEdited(int row, int field, const QString &text)
{
    const QString trimmed = text.trimmed();
    const bool isTerm = field != CWordEntry::NoteField;
    if (isTerm && trimmed.isEmpty()) {
        if (m_services.rows.IsNewEntryRow(row)) {
            ClearPending(field);
        }
        return {};
    }
    if (m_services.rows.IsNewEntryRow(row)) {
        return NewEntryCellEdited(field, trimmed);
    }
    const int entry = m_services.rows.EntryOfRow(row);
    if (entry < 0 || entry >= m_services.document.List().Count()) {
        return {};
    }
    const QString wanted = isTerm ? NormalizeTerm(Corrected(trimmed)) : trimmed;
    // A text of separators alone normalises to nothing, and terms are never empty.
    if (isTerm && wanted.isEmpty()) {
        return {};
    }
    int similar = NoEntry;
    m_services.document.Change([&](CWordList &list) {
        similar = list.SetEntryField(wanted, field, entry, m_services.settings.duplicateVarning);
    });
    const int accepted = AskAboutSimilar(similar);
    return accepted != NoEntry ? SelectSimilar(accepted) : EditStep{};
}

EditStep CEntryEditing::NewEntryCellEdited(int field, const QString &text)
{
    EntryTexts &pending = m_services.rows.pending;
    pending[size_t(field)] = text;
    for (const size_t language : {0u, 1u}) {
        pending[language] = NormalizeTerm(pending[language]);
    }
    m_view.PendingChanged();
    if (!HasBothTerms(pending)) {
        return {Action::EditNewEntry, pending[0].isEmpty() ? 0 : 1};
    }
    if (m_services.settings.showNotes && field != CWordEntry::NoteField && pending[2].isEmpty()) {
        return {Action::EditNewEntry, CWordEntry::NoteField};
    }
    return AddPending();
}

EditStep CEntryEditing::AddPending()
{
    EntryTexts texts = m_services.rows.pending;
    for (const size_t language : {0u, 1u}) {
        texts[language] = Corrected(texts[language]);
    }
    m_services.rows.pending = {};
    const int similar = Add(texts);
    return similar != NoEntry ? SelectSimilar(similar) : EditStep{Action::EditNewEntry, NextField()};
}

int CEntryEditing::NextField() const
{
    const EntryTexts &pending = m_services.rows.pending;
    if (pending[0].isEmpty() && pending[1].isEmpty()) {
        return m_services.settings.lang1first ? 0 : 1;
    }
    return pending[0].isEmpty() ? 0 : 1;
}

bool CEntryEditing::DeleteEntries(std::span<const int> entries)
{
    if (entries.empty()
        || !m_services.prompt.Confirm(
            m_services.texts.Prompt(Text::ReallyDelete, {QString::number(entries.size())}), PromptIcon::Warning,
            PromptButtons::YesNoCancel, PromptAnswer::Yes)) {
        return false;
    }
    return m_services.document.Change([entries](CWordList &list) { list.DeleteEntries(entries); });
}
