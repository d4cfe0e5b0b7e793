// SPDX-License-Identifier: MIT
#pragma once

#include "model/word_list.h"

#include <array>
#include <functional>
#include <optional>
#include <span>

class CRowModel;
class CTexts;
class CWin32Doc;
class IUserPrompt;
enum class PromptIcon;
struct PromptText;
struct ArrangeSettings;
struct EditorSettings;

/// How entry editing shows what it does.
class IEntryView
{
public:
    IEntryView() = default;
    virtual ~IEntryView() = default;
    IEntryView(const IEntryView &) = delete;
    IEntryView &operator=(const IEntryView &) = delete;

    virtual void SetInsertionPoint(int row) = 0;
    /// A text of the new-entry row changed.
    virtual void PendingChanged() = 0;
    virtual void ShowNotes() = 0;
    /// Brings an entry fully into sight and lets it stand out while a question about it is open; NoEntry ends
    /// that.
    virtual void MarkEntry(int entry) = 0;
};

/// What an edit box or the entry fields held.
using EntryTexts = std::array<QString, CWordEntry::FieldCount>;

/// Whether texts, in normal form, have both terms of an entry.
bool HasBothTerms(const EntryTexts &texts);
/// The entry that texts make of which some may be missing; none when they hold nothing. A note alone stands as
/// a term, since no file holds an entry without one.
std::optional<CWordEntry> RestAsEntry(const EntryTexts &texts);

/// What the view does after an edit.
struct EditStep
{
    enum class Action {
        /// Everything stays as it is.
        None,
        /// The field `index` takes the focus; nothing was stored.
        FocusField,
        /// The entry `index` becomes the selection.
        SelectEntry,
        /// The same, but what is typed goes on in a new entry.
        SelectAndTypeOn,
        /// The selection becomes empty without the focus moving.
        ClearSelection,
        /// The fields are emptied for the next entry.
        ClearFields,
        /// The field `index` of the new-entry row is edited next.
        EditNewEntry
    };
    Action action = Action::None;
    int index = 0;
    bool operator==(const EditStep &) const = default;
    bool Selects() const { return action == Action::SelectEntry || action == Action::SelectAndTypeOn; }
};

/// What the entry editor is handed; none of it is owned.
struct EntryEditingServices
{
    CWin32Doc &document;
    CRowModel &rows;
    const EditorSettings &settings;
    const ArrangeSettings &arrange;
    const CTexts &texts;
    IUserPrompt &prompt;
};

/// Makes, changes and deletes entries: from the entry fields, from cells edited in place, and by the delete
/// command. Proposes corrected terms and warns of similar entries. Each call takes one step for undo at most.
class CEntryEditing
{
public:
    CEntryEditing(EntryEditingServices services, IEntryView &view);

    /// The add-or-change button. `entry` is the one to change, NoEntry to add one.
    EditStep FromFields(const EntryTexts &texts, int entry);
    /// The same without going on to another entry: the step is SelectEntry or None. Does nothing without two
    /// terms.
    EditStep StoreFields(const EntryTexts &texts, int entry);
    /// Takes back what was typed for a field of the new entry.
    void ClearPending(int field);
    /// Makes an entry of the texts of the new-entry row when both terms are there.
    EditStep StorePending();
    /// The field of the new-entry row that is typed next.
    int NextField() const;
    /// Makes an entry of texts of which some may be missing, without a question. See RestAsEntry().
    void AddRest(const EntryTexts &texts);
    /// Gives an entry other texts without a question.
    void ChangeUnasked(int entry, const EntryTexts &texts);
    /// A cell was edited and not cancelled.
    EditStep CellEdited(int row, int field, const QString &text);
    /// Asks before it deletes; true when the entries are gone. `entries` is ascending.
    bool DeleteEntries(std::span<const int> entries);
    /// Whether anything is asked; without it terms stay as typed and similar entries unmentioned.
    void SetAsking(bool asking) { m_asking = asking; }

private:
    EditStep NewEntryCellEdited(int field, const QString &text);
    EditStep AddPending();
    /// Returns a similar entry that the user wants to see, or NoEntry.
    int AddOrChange(EntryTexts texts, int entry);
    /// Returns a similar entry that the user wants to see, or NoEntry.
    int Add(const EntryTexts &texts);
    /// The term as it is, or as the user lets it be corrected.
    QString Corrected(const QString &term);
    int AskAboutSimilar(int similar);
    /// Asks someone who may be typing on.
    bool ConfirmTyped(const PromptText &text, PromptIcon icon);
    EditStep SelectSimilar(int similar) const;

    EntryEditingServices m_services;
    IEntryView &m_view;
    bool m_asking = true;
};
