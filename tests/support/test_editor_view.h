// SPDX-License-Identifier: MIT
#pragma once

#include "editor/editor_view.h"
#include "editor/row_model.h"
#include "platform/clipboard.h"
#include "support/test_document.h"

#include <QMimeData>

/// A view of the editor without a window: keeps what is selected, and has the document's insertion point.
class CTestEditorView : public IEditorView
{
public:
    explicit CTestEditorView(CWin32Doc &document) : m_document(document) { }

    std::vector<int> SelectedEntries() const override { return selected; }
    int FirstSelectedEntry() const override { return selected.empty() ? -1 : selected.front(); }
    int FirstSelectedRow() const override { return selectedRow; }
    int RowCount() const override { return m_document.List().Count() + 1; }
    int CursorRow() const override { return cursorRow; }
    int CursorField() const override { return cursorField; }
    int LastField() const override { return lastField; }
    int InsertionPoint() const override { return m_document.InsertionPoint(); }
    void SelectRow(int row, bool /*ensureVisible*/) override
    {
        selectedRow = row;
        selected.clear();
    }
    void SelectEntryRange(int first, int last) override
    {
        selected.clear();
        for (int entry = first; entry <= last; ++entry) {
            selected.push_back(entry);
        }
    }
    void SelectEntries(const std::vector<int> &entries) override { selected = entries; }
    void ShowEntry(int entry) override { shown = entry; }
    void ShowMatch(const TextMatch &found, bool /*takeFocus*/) override
    {
        match = found;
        selected = {found.entry};
    }
    void SetCursorField(int field) override { cursorField = field; }
    void SetInsertionPoint(int row) override { m_document.SetInsertionPoint(row); }
    void UpdateStatusText(const QString &text) override { status = text; }
    void DeleteSelection() override { ++deletions; }

    std::vector<int> selected;
    int selectedRow = -1;
    int cursorRow = -1;
    int cursorField = 0;
    int lastField = 2;
    int shown = -1;
    TextMatch match;
    QString status;
    int deletions = 0;

private:
    CWin32Doc &m_document;
};

/// A document with such a view, for what works on the view.
struct TestEditor
{
    explicit TestEditor(const QString &entries) : test(entries) { }
    explicit TestEditor(const QStringList &entries) : test(entries) { }
    QString Entries() const { return test.Entries(); }

    TestDocument test;
    CTestEditorView view{test.document};
};

/// A clipboard of its own.
class CTestClipboard : public IClipboard
{
public:
    const QMimeData *Data() const override { return m_data.get(); }
    void SetData(std::unique_ptr<QMimeData> data) override { m_data = std::move(data); }
    void SetText(const QString &text)
    {
        m_data = std::make_unique<QMimeData>();
        m_data->setText(text);
    }

private:
    std::unique_ptr<QMimeData> m_data;
};
