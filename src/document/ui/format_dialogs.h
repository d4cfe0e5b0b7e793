// SPDX-License-Identifier: MIT
#pragma once

#include "document/format_dialogs.h"
#include "platform/clock.h"

#include <QString>

#include <functional>

class CTexts;
class QDialog;

/// Shows the windows of other formats over the active window.
class CFormatDialogs : public IFormatDialogs
{
public:
    using OpenHelp = std::function<void(const QString &section)>;

    /// `texts` must outlive this; `openHelp` opens the help at a section.
    CFormatDialogs(const CTexts &texts, OpenHelp openHelp, Clock clock = SteadyClock);

    bool ChooseImport(CImportPreview &preview) override;
    bool ChooseExport(CExportForm &form) override;

private:
    bool Show(QDialog &dialog, const QString &section) const;

    const CTexts &m_texts;
    OpenHelp m_openHelp;
    Clock m_clock;
};
