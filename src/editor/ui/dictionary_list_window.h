// SPDX-License-Identifier: MIT
#pragma once

#include "editor/dictionary_list_form.h"

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

class CDictionaryListModel;
class CSpokenText;
class IEditorView;
class QComboBox;
class QFormLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableView;

/// Chooses words of a dictionary, shows the entries that they become, and inserts them.
class CDictionaryListWindow : public QDialog
{
    Q_OBJECT

public:
    using OpenHelp = std::function<void(const QString &section)>;

    /// `view` gets the entries and must outlive this. The form has a dictionary.
    CDictionaryListWindow(
        std::unique_ptr<CDictionaryListForm> form, IEditorView &view, const OpenHelp &openHelp, QWidget *owner);
    ~CDictionaryListWindow() override;

    QSize sizeHint() const override;
    void accept() override;

private:
    QWidget *MakeChoices();
    QWidget *MakeWords();
    QWidget *MakeResult();
    void ShowSides();
    /// Shows what the form says.
    void Refresh();

    std::unique_ptr<CDictionaryListForm> m_form;
    IEditorView &m_view;
    CDictionaryListModel *m_model;
    CSpokenText *m_spoken;
    QTimer m_sayTimer;
    QComboBox *m_side = nullptr;
    QPlainTextEdit *m_words = nullptr;
    QTableView *m_entries = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_insert = nullptr;
};
