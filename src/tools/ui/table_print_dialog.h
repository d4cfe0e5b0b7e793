// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ui/printers.h"
#include "tools/ui/table_page_writer.h"

#include <QDialog>
#include <QTimer>

class CNumberField;
class CSpokenText;
class CTablePagePreview;
class CTexts;
class IUserPrompt;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

/// Shows the pages of a table as they come on paper, and prints them.
class CTablePrintDialog : public QDialog
{
    Q_OBJECT

public:
    struct Services
    {
        const CTexts &texts;
        IUserPrompt &prompt;
        IPrinters &printers;
    };

    /// The pages are laid out whole. The services are not owned.
    CTablePrintDialog(
        const Services &services, std::shared_ptr<CTablePages> pages, const QString &title, QWidget *parent);
    ~CTablePrintDialog() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *MakePreview();
    QWidget *MakeChoices();
    QWidget *MakeButtons();
    QPushButton *MakeButton(int text, const char *name);
    void ShowPage(int page);
    void PrinterChosen();
    void Print();
    void PrintingEnded(bool succeeded);
    void ShowMessage(const QString &message);
    void UpdateEnabled();

    Services m_services;
    std::shared_ptr<CTablePages> m_pages;
    QString m_title;
    int m_page = 0;
    CTablePagePreview *m_preview = nullptr;
    QLabel *m_pageLabel = nullptr;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
    QWidget *m_choices = nullptr;
    QComboBox *m_printer = nullptr;
    QCheckBox *m_bothSides = nullptr;
    CNumberField *m_copies = nullptr;
    CNumberField *m_from = nullptr;
    CNumberField *m_to = nullptr;
    QLabel *m_message = nullptr;
    QPushButton *m_print = nullptr;
    QPushButton *m_close = nullptr;
    QTimer m_pause; // After printing.
    CSpokenText *m_spoken;
    std::unique_ptr<QPagedPaintDevice> m_device; // While it is printed on.
    CTablePageWriter m_writer; // Ends what it paints before the device goes.
};
