// SPDX-License-Identifier: MIT
#include "shell/ui/samples_menu.h"

#include "document/file_commands.h"
#include "platform/plain_text.h"
#include "resources/texts.h"
#include "shell/samples.h"
#include "shell/text_numbers.h"

#include <QMenu>

CSamplesMenu::CSamplesMenu(QMenu &menu, CFileCommands &files, QStringList dataFolders, const CTexts &texts)
    : QObject(&menu), m_menu(menu), m_files(files), m_dataFolders(std::move(dataFolders)), m_texts(texts)
{
    connect(&menu, &QMenu::aboutToShow, this, &CSamplesMenu::Fill);
}

void CSamplesMenu::Fill()
{
    m_menu.clear();
    for (const SampleList &sample : FindSamples(m_dataFolders)) {
        const qsizetype number = m_menu.actions().size() + 1;
        const QString key = number < 10 ? QStringLiteral("&%1 ").arg(number) : QString();
        QAction *const action = m_menu.addAction(key
            + QStringLiteral("%1 (%2)").arg(ShownInCaption(sample.title), ShownInCaption(sample.languages)));
        action->setStatusTip(sample.path);
        // From the event loop, when the menu is closed.
        connect(
            action, &QAction::triggered, this, [this, path = sample.path] { m_files.OpenCopy(path); },
            Qt::QueuedConnection);
    }
    if (m_menu.isEmpty()) {
        m_menu.addAction(m_texts.Get(Text::NoSamples))->setEnabled(false);
    }
}
