// SPDX-License-Identifier: MIT
#pragma once

#include "tools/file_search.h"
#include "tools/ui/file_tool_services.h"

#include <QDialog>

class CElidedLabel;
class CScrollingPage;
class CSpokenText;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

/// Looks for word-list files in a folder and lists them. Beside the main window they can be opened and
/// imported, over the import they are added to it. Closing it stops the search.
class CFileSearchWindow : public QDialog
{
    Q_OBJECT

public:
    enum class Purpose { OpenOrImport, AddToImport };

    /// Deletes itself when it is closed.
    CFileSearchWindow(const FileToolServices &services, Purpose purpose, QWidget *owner);
    ~CFileSearchWindow() override;

    /// Shows it, or brings it to the front.
    void Present();
    /// Shows the settings as they are now.
    void ShowSettings();

    QSize sizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void FileWanted(const QString &path);
    /// To be imported, or added to the import: the selected files, or all if none is.
    void FilesChosen(const QStringList &paths);

private:
    QPushButton *MakeButton(int text, const char *name);
    QWidget *MakeFields();
    void MakeList();
    QLayout *MakeOrderLine();
    void StartOrStop();
    void OpenCurrent();
    void ChooseFiles();
    QStringList ChosenFiles();
    void ShowState();

    FileToolServices m_services;
    Purpose m_purpose;
    CFileSearch m_searching;
    QLineEdit *m_folder = nullptr;
    CScrollingPage *m_fields;
    QTableView *m_list;
    QPushButton *m_start;
    QPushButton *m_open = nullptr;
    QPushButton *m_choose;
    QLabel *m_count;
    CElidedLabel *m_line;
    CSpokenText *m_spoken;
};
