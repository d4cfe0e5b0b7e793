// SPDX-License-Identifier: MIT
#pragma once

#include "document/pending_work.h"
#include "editor/entry_editing.h"
#include "editor/row_model.h"

/// An edit in a cell that is open.
struct OpenEdit
{
    int row = 0;
    int field = 0;
    QString text;
};

/// What the entry fields hold.
struct FieldTexts
{
    EntryTexts typed;
    /// The texts that they were given.
    EntryTexts given;
    /// The entry that they change; NoEntry to add one.
    int entry = NoEntry;
};

/// Where things are typed, as far as they are no entry yet.
class IPendingView
{
public:
    IPendingView() = default;
    virtual ~IPendingView() = default;
    IPendingView(const IPendingView &) = delete;
    IPendingView &operator=(const IPendingView &) = delete;

    virtual std::optional<OpenEdit> EditedCell() const = 0;
    virtual FieldTexts Fields() const = 0;
    /// Ends the open edit and stores its text. Returns what would follow, and doesn't follow it.
    virtual EditStep StoreEdit() = 0;
    /// Empties the fields for another entry.
    virtual void EmptyFields() = 0;
    /// The new-entry row holds what the fields held.
    virtual void PendingKept() = 0;
    /// Shows what came of it all.
    virtual void Stored(const EditStep &step) = 0;
};

/// What is typed in the editor and no entry yet: an open edit, the texts of the new-entry row, the entry
/// fields, and what is typed while a question waits.
class CPendingEntries : public IPendingWork
{
public:
    /// Nothing is owned.
    CPendingEntries(const CWin32Doc &document, const IUserPrompt &prompt, CRowModel &rows,
        CEntryEditing &editing, IPendingView &view);

    void StoreWhole() override;
    bool HasRest() const override;
    void StoreRest() override;
    CWordList ListWithAll() const override;
    /// Keeps what the fields held when another entry took their place: a change changes its entry, if that is
    /// still what the fields were given, without a question; what was to be added goes to the new-entry row.
    void KeepLeft(const FieldTexts &fields);

private:
    const CWin32Doc &m_document;
    const IUserPrompt &m_prompt;
    CRowModel &m_rows;
    CEntryEditing &m_editing;
    IPendingView &m_view;
    bool m_storing = false;
};
