// SPDX-License-Identifier: MIT
#pragma once

#include "editor/entry_editing.h"
#include "editor/row_model.h"
#include "settings/shell_settings.h"
#include "support/test_document.h"

/// Editing of entries over a list, with a view that only keeps the rows and notes what it is to show.
struct TestEntryEditor : IEntryView
{
    explicit TestEntryEditor(const QString &entries = {}) : test(entries)
    {
        rows.SetEntryCount(test.document.List().Count());
    }

    void SetInsertionPoint(int row) override
    {
        test.document.SetInsertionPoint(row);
        rows.SetEntryCount(test.document.List().Count());
        rows.SetInsertionPoint(test.document.InsertionPoint());
    }
    void PendingChanged() override { }
    void ShowNotes() override
    {
        test.settings.showNotes = true;
        shown.append(QStringLiteral("notes"));
    }
    void MarkEntry(int entry) override { shown.append(QStringLiteral("mark %1").arg(entry)); }

    QString Entries() const { return test.Entries(); }

    TestDocument test;
    CRowModel rows;
    ArrangeSettings arrange;
    QStringList shown;
    CEntryEditing editing{{test.document, rows, test.settings, arrange, test.texts, test.prompt}, *this};
};
