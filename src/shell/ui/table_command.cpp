// SPDX-License-Identifier: MIT
#include "shell/ui/table_command.h"

#include "editor/editor_view.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"
#include "tools/ui/table_guide.h"

CTableCommand::CTableCommand(
    CCommandActions &actions, const IEditorView &view, const TableGuideServices &services, QWidget &mainWindow)
    : QObject(&mainWindow), m_printers(std::make_unique<CSystemPrinters>()), m_paper(UsualPaper())
{
    actions.SetHandler(CommandId::TableGuide, [this, &view, services, &mainWindow] {
        auto *const guide =
            new CTableGuide(services, view.SelectedEntries(), m_paper, *m_printers, &mainWindow);
        guide->setAttribute(Qt::WA_DeleteOnClose);
        guide->open();
    });
}

CTableCommand::~CTableCommand() = default;
