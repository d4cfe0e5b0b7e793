// SPDX-License-Identifier: MIT
#pragma once

#include "tools/table_guide_form.h"
#include "tools/ui/table_guide4.h"

#include <QObject>

class CCommandActions;
class IEditorView;
class IPrinters;

/// The command that opens the table wizard.
class CTableCommand : public QObject
{
public:
    /// Nothing is owned.
    CTableCommand(CCommandActions &actions, const IEditorView &view, const TableGuideServices &services,
        QWidget &mainWindow);
    ~CTableCommand() override;

private:
    std::unique_ptr<IPrinters> m_printers;
    TablePaper m_paper;
};
