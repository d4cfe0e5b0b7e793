// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_maker.h"
#include "tools/ui/table_pdf.h"

#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class CSpokenText;
class CTableGuideForm;
class IPrinters;
class IUserPrompt;
class QComboBox;
class QGroupBox;
class QPlainTextEdit;
class QPushButton;

/// The paper of printed tables; lasts as long as the program runs.
struct TablePaper
{
    int size = 0; ///< The place in the list of papers.
    int orientation = 0; ///< 0 upright, 1 across.
};

/// The paper that the user's country writes on.
TablePaper UsualPaper();

/// The last page of the table wizard: makes the table, shows it or has it shown, saves and prints it.
class CTableGuide4 : public QWidget
{
    Q_OBJECT

public:
    struct Services
    {
        CTableGuideForm &form;
        IUserPrompt &prompt;
        IPrinters &printers;
        TablePaper &paper;
        CSpokenText &spoken;
    };

    /// Nothing is owned.
    explicit CTableGuide4(const Services &services, QWidget *parent = nullptr);

    /// Makes the table under the options as they are now.
    void Make();
    /// Gives up what is being made or saved.
    void Stop();
    /// Does so for the user, and says so.
    void Cancel();
    bool IsWorking() const;

Q_SIGNALS:
    void WorkingChanged();

private:
    QWidget *MakePaper();
    QPushButton *MakeButton(int text, const char *name);
    void ShowResult(const TableResult &result);
    void OpenPage();
    void Save();
    void Print();
    void OpenPrintWindow();
    void SavePdf();
    std::shared_ptr<CTablePages> Pages() const;
    void Saved(const QString &file);
    void Failed(const QString &file);
    /// Shows it and says it, since it comes without a key.
    void ShowMessage(const QString &message);
    /// How far a work has come; the message comes back at its end.
    void ShowProgress(const QString &progress) { m_message->setText(progress); }
    void WorkBegins();
    void WorkEnds();
    void UpdateEnabled();

    Services m_services;
    QLabel *m_message;
    QPlainTextEdit *m_preview;
    QPushButton *m_show;
    QPushButton *m_save;
    QGroupBox *m_paper = nullptr;
    QComboBox *m_size = nullptr;
    QComboBox *m_orientation = nullptr;
    QString m_lasting; // The message, while progress is shown in its place.
    QPointer<QWidget> m_begunBy; // Has the focus again at the end of the work.
    bool m_hasPage = false; // There is one to be opened.
    int m_run = 0; // Tells what the browser answers to a former page from the last one.
    CTableMaker m_maker;
    CTablePdf m_pdf;
    QTimer m_layingOut;
    std::shared_ptr<CTablePages> m_pages; // While they are laid out for printing.
};
