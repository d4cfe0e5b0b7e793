// SPDX-License-Identifier: MIT
#pragma once

#include "document/import_form.h"
#include "document/import_models.h"

#include <QDialog>

class CSpokenText;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QTableView;
class QVBoxLayout;

/// Shows how a separated text would be read: its rows, the entries that they become, and what may be chosen.
class CImportPreviewDialog : public QDialog
{
    Q_OBJECT

public:
    /// `preview` and `texts` must outlive this.
    CImportPreviewDialog(CImportPreview &preview, const CTexts &texts, QWidget *owner);

    QSize sizeHint() const override;

private:
    QWidget *MakeOptions();
    QWidget *MakeTables();
    QTableView *MakeTable(const char *name, int caption, CImportModel &model, QVBoxLayout &layout);
    QWidget *MakeButtons();
    void AddChoice(QGridLayout &rows, int row, int caption, QComboBox *choice);
    void AddTermOption(QGridLayout &rows, const char *name, int caption, bool TermOptions::*option);
    void GoToColumn(int column);
    void ShowKindMenu(int column);
    void ChooseKind(int column, int kind);
    /// Shows what the form says after a choice. `chosen` is the item of a list that was chosen.
    void Refresh(const QString &chosen = {});
    /// Shows what follows from the choice that was made, and says what of it changed.
    void ShowGuesses(const QString &chosen);

    CImportForm m_form;
    CImportRowsModel m_rows;
    CImportEntriesModel m_entries;
    CSpokenText *m_spoken;
    QComboBox *m_separator = nullptr;
    QComboBox *m_encoding = nullptr;
    QCheckBox *m_heading = nullptr;
    QTableView *m_rowTable = nullptr;
    QLabel *m_kindLabel = nullptr;
    QComboBox *m_kind = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_import = nullptr;
    QString m_columns; // What they are, as it was said last.
    int m_column = 0; // Which one the choice below the rows is about.
};
