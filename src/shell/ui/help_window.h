// SPDX-License-Identifier: MIT
#pragma once

#include "shell/help.h"

#include <QWidget>

#include <functional>

class CHelpText;
class CTexts;
class IUserPrompt;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The window of the help: its contents, its text, and a search in it. It belongs to no other window, so that
/// it can be read beside a quiz, which blocks the window that it belongs to.
class CHelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// Nothing is owned. `openFile` opens a file in the browser and tells itself when that fails.
    CHelpWindow(const CTexts &texts, QStringList dataFolders, IUserPrompt &prompt,
        std::function<void(const QString &file)> openFile);

    /// Shows the window at a section, by the name of its anchor; where it was before when that is empty. The
    /// user is told when there is no help to show.
    void ShowSection(const QString &anchor);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *MakeContents();
    QWidget *MakeSearch();
    QWidget *MakeButtons();
    QPushButton *MakeButton(int text, const char *name);
    bool Load();
    void FillContents(const QList<HelpSection> &sections);
    /// Selects the section in the contents.
    void MarkSection(const QString &anchor);
    void FindTyped();
    void FindNext(bool forward);

    const CTexts &m_texts;
    QStringList m_dataFolders;
    IUserPrompt &m_prompt;
    std::function<void(const QString &file)> m_openFile;
    QString m_file;
    CHelpText *m_text;
    QTreeWidget *m_contents = nullptr;
    QLineEdit *m_search = nullptr;
    QLabel *m_hits = nullptr;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
    QPushButton *m_back = nullptr;
};
