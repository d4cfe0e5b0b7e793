// SPDX-License-Identifier: MIT
#include "document/ui/format_dialogs.h"

#include "document/ui/export_dialog.h"
#include "document/ui/import_preview_dialog.h"
#include "platform/ui/input_guard_filter.h"
#include "platform/ui/owner_window.h"
#include "platform/ui/wait_cursor.h"

#include <QShortcut>

CFormatDialogs::CFormatDialogs(const CTexts &texts, OpenHelp openHelp, Clock clock)
    : m_texts(texts), m_openHelp(std::move(openHelp)), m_clock(std::move(clock))
{
}

bool CFormatDialogs::Show(QDialog &dialog, const QString &section) const
{
    dialog.setWindowModality(Qt::WindowModal); // The help stays usable, also before there is a main window.
    auto *const help = new QShortcut(Qt::Key_F1, &dialog);
    help->setAutoRepeat(false);
    QObject::connect(help, &QShortcut::activated, &dialog, [&] { m_openHelp(section); });
    // Pressed twice, the Enter that chose the file would confirm what nobody has read.
    CInputGuardFilter guard(m_clock);
    guard.WindowOpens(dialog);
    const CUsualCursor usual;
    return dialog.exec() == QDialog::Accepted;
}

bool CFormatDialogs::ChooseImport(CImportPreview &preview)
{
    CImportPreviewDialog dialog(preview, m_texts, OwnerWindow());
    return Show(dialog, QStringLiteral("preview"));
}

bool CFormatDialogs::ChooseExport(CExportForm &form)
{
    CExportDialog dialog(form, OwnerWindow());
    return Show(dialog, QStringLiteral("export"));
}
