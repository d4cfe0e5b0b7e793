// SPDX-License-Identifier: MIT
#pragma once

#include "editor/list_order.h"

#include <optional>

class CRandom;
class CWin32Doc;
class IEditorView;
struct ArrangeSettings;

/// The sort options as the list takes them: stored is whether the order descends.
SortOptions SortOptionsOf(const ArrangeSettings &settings);

enum class MovedPart { Entry, Field };

/// Puts the list in order and sets the flags of its entries. Each call takes one step for undo at most.
class CArranging
{
public:
    /// Nothing is owned.
    CArranging(IEditorView &view, CWin32Doc &document, ArrangeSettings &settings, CRandom &random);

    /// By a field, or ShuffleKey. The new-entry row becomes the selection.
    void Sort(int field);
    /// By a field; a list that stands in that order already is turned round, and the option of descending with
    /// it. Returns whether that option is another now.
    bool SortOrTurn(int field);
    const CListOrder &Order() const { return m_order; }
    /// Of the selected entries, in the language of the cell cursor.
    void SetFlags(FlagMode mode);
    void ToggleFlag(int entry, int language);

    /// Moves the selected entries one row, or of each the field of the cell cursor with its flag. They stay
    /// selected. Nothing leaves the list. With `goesOn` it is one step for undo with the move before, as far as
    /// nothing else changed the list in between.
    void MoveRows(bool up, MovedPart part, bool goesOn);
    /// Exchanges the field of the cell cursor, in the selected entries, with the one to its left (step -1) or
    /// right (step 1), as far as that is shown. The cell cursor follows.
    void MoveFields(int step);
    /// Moves the selected entries to where they stand above a row, one after the other; below the last for the
    /// number of rows. They stay selected.
    void MoveTo(int row);

private:
    IEditorView &m_view;
    CWin32Doc &m_document;
    ArrangeSettings &m_settings;
    CRandom &m_random;
    CListOrder m_order;
    std::optional<quint64> m_moved; // The document's change counter after the last move.
};
