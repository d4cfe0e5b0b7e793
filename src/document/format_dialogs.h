// SPDX-License-Identifier: MIT
#pragma once

class CExportForm;
class CImportPreview;

/// The windows in which the user chooses how files of other formats are read and written. Whatever decides is
/// handed one of these; the one in tests answers by script.
class IFormatDialogs
{
public:
    IFormatDialogs() = default;
    virtual ~IFormatDialogs() = default;
    IFormatDialogs(const IFormatDialogs &) = delete;
    IFormatDialogs &operator=(const IFormatDialogs &) = delete;

    /// Shows how a separated text would be read. True when it is to be read as chosen then.
    virtual bool ChooseImport(CImportPreview &preview) = 0;
    /// Shows what a copy in another format would not have. True when it is to be written as chosen then.
    virtual bool ChooseExport(CExportForm &form) = 0;
};
