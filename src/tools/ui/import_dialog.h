// SPDX-License-Identifier: MIT
#pragma once

#include "tools/importing.h"
#include "tools/ui/file_tool_services.h"

#include <QDialog>
#include <QPointer>

#include <array>

class CElidedLabel;
class CFileSearchWindow;
class CSpokenText;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

/// Collects files to import, with the filters for them, and then shows how the import goes on. Closing it stops
/// the import and waits; what was imported by then stays.
class CImportDialog : public QDialog
{
    Q_OBJECT

public:
    CImportDialog(const FileToolServices &services, QWidget *owner);
    ~CImportDialog() override;

    void AddFiles(const QStringList &paths) { m_importing.AddFiles(paths); }
    /// Stops the import and waits for it; the window stays.
    void Finish() { m_importing.Finish(); }

    /// Stops what is going on, or else closes the window.
    void reject() override;
    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QPushButton *MakeButton(int text, const char *name);
    void MakeList();
    QWidget *MakeFilter();
    QWidget *MakeProgress();
    void Start();
    void OpenSearch();
    void RemoveSelected();
    void ShowState();
    void ShowEnd();

    FileToolServices m_services;
    CImporting m_importing;
    QLabel *m_count;
    QTableView *m_list;
    QPushButton *m_choose;
    QPushButton *m_search;
    QPushButton *m_remove;
    QPushButton *m_import;
    QPushButton *m_cancel;
    QWidget *m_filterPart;
    std::array<QLabel *, 5> m_counters = {};
    QProgressBar *m_progress = nullptr;
    QWidget *m_progressPart;
    CElidedLabel *m_line;
    CSpokenText *m_spoken;
    QPointer<CFileSearchWindow> m_searchWindow;
};
