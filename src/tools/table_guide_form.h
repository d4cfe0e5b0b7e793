// SPDX-License-Identifier: MIT
#pragma once

#include "fileformats/text_encoding.h"
#include "tools/table_columns.h"
#include "tools/table_maker.h"

#include <QDate>

#include <functional>
#include <optional>

class CTexts;
class CWin32Doc;
class IFileChooser;
class IUserPrompt;

/// What the table wizard is handed; none of it is owned.
struct TableGuideServices
{
    const CWin32Doc &document;
    CreateTableSettings &options;
    const CTexts &texts;
    IUserPrompt &prompt;
    IFileChooser &chooser;
    std::function<QDate()> today;
    /// Where the page for the browser is written; a folder for its user alone.
    QString pageFolder;
    /// Opens a file in the program for it, and calls `failed` later when that fails.
    std::function<void(const QString &file, std::function<void()> failed)> openFile;
    std::function<void()> showHelp;
};

/// A table to be written to a file.
struct TableToSave
{
    TableTarget target;
    bool isPage = false;
};

/// What the table wizard decides. The options are changed in place, and stay so when the wizard is cancelled.
class CTableGuideForm
{
public:
    /// `selection` holds the entries selected in the list, ascending.
    CTableGuideForm(const TableGuideServices &services, std::vector<int> selection);

    const CTexts &Texts() const { return m_services.texts; }
    CreateTableSettings &Options() { return m_services.options; }
    CTableColumns &Columns() { return m_columns; }
    bool HasSelection() const { return !m_selection.empty(); }
    /// A table needs a column.
    bool CanGoOn() const { return !m_columns.Chosen().isEmpty(); }

    QString ColumnName(TableColumn column) const;
    /// The choices of a text, one on each line, with the names of the languages in them.
    QString Choices(int text) const;

    /// What the table holds under the options as they are now.
    CTableCells Cells() const;
    /// The title for what can name itself; the list's name where the table has none.
    QString Name() const;

    /// The page for the browser; empty where its name would become too long.
    QString PageFile() const;
    /// Begins to make the page for the browser, or the text to be shown. Returns false, and tells why, when
    /// there is no place for the page.
    bool Make(CTableMaker &maker) const;
    void OpenPage(std::function<void()> failed) const;

    /// Asks for a file; none when there is nothing to be saved.
    std::optional<TableToSave> AskWhereToSave() const;
    void Save(CTableMaker &maker, const TableToSave &table) const;
    /// Asks for a file for a PDF; empty for none.
    QString AskForPdf() const;

    /// Tells what went wrong with a file.
    void TellFailure(const QString &file) const;
    void TellLoss(const QString &file) const;

private:
    std::unique_ptr<ITableWriter> Writer(bool asPage) const;
    QString ProposedFile(const QString &suffix) const;
    /// Tells so: a table doesn't take the place of the list.
    bool IsListsOwnFile(const QString &file) const;

    TableGuideServices m_services;
    std::vector<int> m_selection;
    CTableColumns m_columns;
};
