// SPDX-License-Identifier: MIT
#include "document/ui/format_dialogs.h"

#include "document/ui/export_dialog.h"
#include "document/ui/import_preview_dialog.h"
#include "platform/ui/owner_window.h"
#include "platform/ui/wait_cursor.h"

#include <QShortcut>

namespace {

bool Show(QDialog &dialog, const CFormatDialogs::OpenHelp &openHelp, const QString &section)
{
    dialog.setWindowModality(Qt::WindowModal); // The help stays usable, also before there is a main window.
    auto *const help = new QShortcut(Qt::Key_F1, &dialog);
    help->setAutoRepeat(false);
    QObject::connect(help, &QShortcut::activated, &dialog, [&openHelp, &section] { openHelp(section); });
    const CUsualCursor usual;
    return dialog.exec() == QDialog::Accepted;
}

}

CFormatDialogs::CFormatDialogs(const CTexts &texts, OpenHelp openHelp)
    : m_texts(texts), m_openHelp(std::move(openHelp))
{
}

bool CFormatDialogs::ChooseImport(CImportPreview &preview)
{
    CImportPreviewDialog dialog(preview, m_texts, OwnerWindow());
    return Show(dialog, m_openHelp, QStringLiteral("preview"));
}

bool CFormatDialogs::ChooseExport(CExportForm &form)
{
    CExportDialog dialog(form, OwnerWindow());
    return Show(dialog, m_openHelp, QStringLiteral("export"));
}
