// SPDX-License-Identifier: MIT
#pragma once

#include "settings/tool_settings.h"
#include "tools/file_collecting.h"
#include "tools/import_files_model.h"
#include "tools/import_thread.h"

#include <QObject>

class CTexts;
class CWin32Doc;
class IFileChooser;

/// The import without its window: collects files, imports them into a copy of the document's list, and makes
/// that the document's list as one step for undo. Nobody else may change the list in between.
class CImporting : public QObject
{
    Q_OBJECT

public:
    enum class Stage { Choosing, Importing, Done };

    /// Nothing is owned. The entries go where the next entry goes now.
    CImporting(CWin32Doc &document, ImportSettings &settings, const CTexts &texts, QObject *parent = nullptr);
    /// As Finish().
    ~CImporting() override;

    /// What the controls show; stored when the import starts.
    ImportSettings values;

    CImportFilesModel &Files() { return m_files; }
    Stage CurrentStage() const { return m_stage; }
    bool IsCollecting() const { return m_isCollecting; }
    bool CanStart() const;

    void ChooseFiles(IFileChooser &chooser);
    void AddFiles(const QStringList &paths);
    /// Files, and folders with all that is below them, which takes its time.
    void Collect(const QStringList &paths);
    /// Takes rows out of the files.
    void Remove(const std::vector<int> &rows);
    /// Leaves it at what was found.
    void StopCollecting();

    /// Does nothing when CanStart() does not hold.
    void Start();
    /// Asks the import to stop; it ends soon.
    void Cancel();
    /// Stops whatever is going on and waits for it. What was imported is in the document then.
    void Finish();

    /// How many files there are.
    QString FileCount() const;
    /// What is being looked through, the file that is being read, or that all is done.
    QString StatusLine() const;
    const ImportTotals &Totals() const { return m_totals; }
    int FilesRead() const { return m_filesRead; }
    /// What came of it, to be read out.
    QString Summary() const;

Q_SIGNALS:
    /// Anything of the above is another.
    void Changed();
    /// Files were added to those to import, or none was found.
    void FilesAdded();
    /// The import is done.
    void Ended();

private:
    void TakeCollected();
    void TakeMessages();
    void Take(const NewFileMessage &message);
    void Take(const FileReadMessage &message);
    void Take(const ImportEndMessage &message);
    ImportOptions Options() const;

    CWin32Doc &m_document;
    ImportSettings &m_settings;
    const CTexts &m_texts;
    int m_position;
    CImportFilesModel m_files;
    Stage m_stage = Stage::Choosing;
    ImportTotals m_totals;
    int m_file = 0; // That is being read.
    int m_filesRead = 0;
    QString m_lastFolder; // Where files were chosen.
    bool m_isCollecting = false;
    QString m_folder; // That is being looked through.
    QStringList m_toCollect; // After what is being collected.
    // They go before what they report to.
    CFileCollecting m_collecting;
    CImportThread m_thread;
};
