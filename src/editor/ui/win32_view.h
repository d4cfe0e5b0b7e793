// SPDX-License-Identifier: MIT
#pragma once

#include "editor/editor_view.h"
#include "editor/entry_editing.h"
#include "editor/list_summary.h"
#include "editor/pending_entries.h"
#include "editor/row_model.h"

#include <QPersistentModelIndex>
#include <QWidget>

#include <optional>
#include <utility>
#include <vector>

class CElidedLabel;
class CEntryFields;
class CSettingsChanges;
class CWordListControl;
class CWordListModel;
class QLineEdit;
class QMimeData;
struct CellEdit;
struct ListChange;
struct Settings;

/// What the view is handed; none of it is owned.
struct ViewServices
{
    CWin32Doc &document;
    Settings &settings;
    CSettingsChanges &settingsChanges;
    const CTexts &texts;
    IUserPrompt &prompt;
};

/// The view of the document: author and comments, the word list below them, and the entry fields. Owns its
/// widgets; hands every edit to CEntryEditing and shows what came of it. Commands work on it as an IEditorView.
class CWin32View final : public QWidget, public IEditorView, private IEntryView, private IPendingView
{
    Q_OBJECT

public:
    explicit CWin32View(const ViewServices &services, QWidget *parent = nullptr);

    // Selection (win32_view_selection.cpp)
    std::vector<int> SelectedEntries() const override;
    int SelectedEntryCount() const;
    int SelectedRowCount() const;
    /// NoEntry when no entry is selected.
    int FirstSelectedEntry() const override;
    int FirstSelectedRow() const override;
    int RowCount() const override;
    int CursorRow() const override;
    int CursorField() const override;
    int LastField() const final;
    void SetCursorField(int field) override;
    void SelectRow(int row, bool ensureVisible) override;
    /// A negative entry selects nothing.
    void SelectEntry(int entry);
    void SelectEntries(const std::vector<int> &entries) override;
    void ShowEntry(int entry) override;
    void ShowMatch(const TextMatch &match, bool takeFocus) override;
    void SelectEntryRange(int first, int last) override;
    void SelectAll();

    /// The entry and the language of a cell with a flag; none when the cell is gone.
    std::optional<std::pair<int, int>> FlagOf(const QModelIndex &cell) const;

    void SetInsertionPoint(int row) override;
    int InsertionPoint() const override;
    /// A line above the list that stays until it is emptied.
    void ShowNotice(const QString &notice);
    /// The heading of the field, if there is one, has an arrow.
    void ShowOrder(std::optional<int> field, bool ascending);

    /// Shows everything anew, after columns came or went; the selected rows stay selected.
    void RefreshAll();
    /// Shows a text in the status line until something else is to be told; empty for what is selected.
    void UpdateStatusText(const QString &text = {}) override;
    /// Empties the fields for a new entry.
    void ClearFields();
    /// Ends editing in place; what was committed is stored when this returns.
    void EndEditing(bool commit);
    /// Stores what is being typed without asking anything.
    void EndEditingQuietly();
    /// A change in the fields that is not confirmed changes its entry before a command acts on the list.
    void KeepChangedFields();
    /// What is typed and no entry yet.
    IPendingWork &PendingWork() { return m_pending; }

    /// Whether the cell cursor stands on a text of the new-entry row, and no entry is selected.
    bool IsOnPendingText() const;
    /// Takes such a text back; else asks before it deletes the selected entries.
    void DeleteSelection() override;

Q_SIGNALS:
    void StatusTextChanged(const QString &text);
    /// What is selected, or where the cell cursor stands, is another.
    void SelectionChanged();
    /// What is typed and no entry yet is another.
    void TypedChanged();
    /// A term of a new entry is about to be typed in a line; `otherTerm`, of the other language, is not empty.
    void TermWanted(QLineEdit *line, int language, const QString &otherTerm);
    /// The heading of a field was clicked. An edit is left open, here and for a flag: the command ends it.
    void SortRequested(int field);
    /// A flag was clicked; FlagOf() says whose.
    void FlagClicked(const QPersistentModelIndex &cell);
    /// The flags of the selected entries are to be turned round.
    void InvertFlagsRequested();
    /// The selected rows were dragged above a row.
    void RowsDropped(int row);
    /// Something that may hold entries was dropped above a row.
    void DataDropped(const QMimeData &data, int row);
    /// Menus for the selected rows and for the columns, at places on the screen.
    void RowMenuRequested(const QPoint &place);
    void ColumnMenuRequested(const QPoint &place);

private:
    void ConnectList();
    void ListChanged(const ListChange &change);
    /// What was typed and selected belonged to the document before.
    void ForgetDocument();
    void FollowSettings();
    void ShowProperties();
    /// Runs `show`, which may show all rows anew; the same rows stay selected, and the cell cursor stays.
    void KeepSelection(const std::function<void()> &show);
    /// Selects no row and puts the cell cursor in a cell that there is.
    void PlaceCursor(int row, int field);
    void ReadSelection();
    /// Keeps what stands in the fields before the selection puts another entry in its place.
    void KeepFields();
    void LoadFields(int entry);

    void CellEdited(const CellEdit &edit);
    void FieldsEntered();
    void Follow(const EditStep &step, bool byEnter);
    /// Selects and shows an entry while what was typed goes on in another.
    void SelectAndTypeOn(int entry);
    /// Whether the entry that a question told of stays selected, since what was typed still goes on.
    bool ShowsFound();
    void TellTermWanted(QLineEdit &line, int language, const QString &otherTerm);
    void EditorOpened(QLineEdit *line, int row, int field);
    void CellDoubleClicked(int row, int field, bool shift);
    void SearchTyped(const QString &start, int row);
    void PendingChanged() override;
    void ShowNotes() override;
    void MarkEntry(int entry) override;

    std::optional<OpenEdit> EditedCell() const override;
    FieldTexts Fields() const override;
    EditStep StoreEdit() override;
    void EmptyFields() override;
    void PendingKept() override { PendingChanged(); }
    void Stored(const EditStep &step) override;

    ViewServices m_services;
    CListSummary m_summary;
    CWordListModel *m_model;
    CWordListControl *m_list;
    CEntryFields *m_fields;
    CElidedLabel *m_notice;
    CElidedLabel *m_author;
    CElidedLabel *m_comments;
    CEntryEditing m_editing;
    CPendingEntries m_pending;
    bool m_suppressSelectionSync = false;
    // What the fields were given last: they are given it anew only when it is another.
    int m_loadedEntry = NoEntry;
    EntryTexts m_loadedTexts;
    /// While an edit is stored and not followed: what would follow.
    std::optional<EditStep> m_storedStep;
    bool m_showsFound = false;
    // The fields hold a new entry although one is selected, until the selection changes.
    bool m_fieldsStandAlone = false;
};
