// SPDX-License-Identifier: MIT
#pragma once

#include "document/export_form.h"

#include <QDialog>

#include <functional>

class CSpokenText;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;

/// Shows what a copy in another format would not have, with what may be chosen for it.
class CExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `form` must outlive this.
    CExportDialog(CExportForm &form, QWidget *owner);

    QSize sizeHint() const override;

private:
    QWidget *MakePage();
    void AddChoice(QFormLayout &rows, int caption, QComboBox *choice);
    QCheckBox *AddCheck(QFormLayout &rows, const char *name, int caption, bool checked,
        const std::function<void(bool)> &choose);
    void AddLayout(QFormLayout &rows, QWidget &page);
    /// Shows what the form says after a choice. `chosen` is the item of a list that was chosen.
    void Refresh(const QString &chosen = {});

    CExportForm &m_form;
    CSpokenText *m_spoken;
    QCheckBox *m_mark = nullptr; // Of separated text alone.
    QLabel *m_losses = nullptr;
    QPushButton *m_save;
};
