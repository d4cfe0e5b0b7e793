// SPDX-License-Identifier: MIT
#pragma once

#include "document/format_dialogs.h"

#include <QString>

#include <functional>

class CTexts;

/// Shows the windows of other formats over the active window.
class CFormatDialogs : public IFormatDialogs
{
public:
    using OpenHelp = std::function<void(const QString &section)>;

    /// `texts` must outlive this; `openHelp` opens the help at a section.
    CFormatDialogs(const CTexts &texts, OpenHelp openHelp);

    bool ChooseImport(CImportPreview &preview) override;
    bool ChooseExport(CExportForm &form) override;

private:
    const CTexts &m_texts;
    OpenHelp m_openHelp;
};
