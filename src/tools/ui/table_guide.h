// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_guide_form.h"
#include "tools/ui/printers.h"
#include "tools/ui/table_guide4.h"

#include <QDialog>

#include <array>

class CSpokenText;
class QStackedWidget;

/// The table wizard: makes a table of the list, to be printed or saved.
class CTableGuide : public QDialog
{
    Q_OBJECT

public:
    /// `paper` and `printers` are not owned. `selection` holds the entries selected in the list, ascending.
    CTableGuide(const TableGuideServices &services, std::vector<int> selection, TablePaper &paper,
        IPrinters &printers, QWidget *parent = nullptr);

    /// Stops what is being made or saved, or else closes the window.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    static constexpr int PageCount = 4;

    void AddPage(QWidget *page);
    QWidget *MakeButtons();
    QPushButton *MakeButton(int text, const char *name);
    void ShowPage(int page);
    void FocusPage();
    void UpdateEnabled();

    CTableGuideForm m_form;
    CSpokenText *m_spoken;
    QLabel *m_heading;
    QStackedWidget *m_pages;
    CTableGuide4 *m_result;
    QPushButton *m_back = nullptr;
    QPushButton *m_next = nullptr;
    QPushButton *m_close = nullptr;
};
