// SPDX-License-Identifier: MIT
#pragma once

#include "editor/list_summary.h"

#include <QWidget>

#include <vector>

class CElidedLabel;
class CTexts;
class CWin32Doc;
class CWordListControl;
class CWordListModel;
struct EditorSettings;

/// The view of the document: author and comments, and the word list below them. Owns its widgets; the document
/// and everything else handed in is not owned.
class CWin32View : public QWidget
{
    Q_OBJECT

public:
    CWin32View(
        CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QWidget *parent = nullptr);

    /// Ascending.
    std::vector<int> SelectedEntries() const;
    /// Selects exactly these entries and brings the first into sight.
    void SelectEntries(const std::vector<int> &entries);
    /// Shows everything anew.
    void RefreshAll();

Q_SIGNALS:
    void StatusTextChanged(const QString &text);

private:
    void UpdateStatusText();

    CWin32Doc &m_document;
    const CTexts &m_texts;
    CListSummary m_summary;
    CWordListModel *m_model;
    CWordListControl *m_list;
    CElidedLabel *m_author;
    CElidedLabel *m_comments;
};
