// SPDX-License-Identifier: MIT
#pragma once

#include "document/format_dialogs.h"

#include <functional>

/// Stands for the windows of formats: what is not scripted is cancelled.
class CScriptedFormatDialogs : public IFormatDialogs
{
public:
    bool ChooseImport(CImportPreview &preview) override { return onImport(preview); }
    bool ChooseExport(CExportForm &form) override { return onExport(form); }

    std::function<bool(CImportPreview &)> onImport = [](CImportPreview &) { return false; };
    std::function<bool(CExportForm &)> onExport = [](CExportForm &) { return false; };
};
