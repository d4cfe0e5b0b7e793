// SPDX-License-Identifier: MIT
#include "shell/ui/settings_commands.h"

#include "document/win32_doc.h"
#include "platform/file_chooser.h"
#include "quiz/ui/quiz_settings_dialog.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"
#include "shell/ui/command_actions.h"
#include "shell/ui/list_properties_dialog.h"
#include "shell/ui/settings_dialog.h"

#include <QApplication>

CSettingsCommands::CSettingsCommands(CCommandActions &actions, Services services, QWidget &mainWindow)
    : QObject(&mainWindow), m_services(std::move(services)), m_mainWindow(mainWindow)
{
    m_services.form.openQuizSettings = [this] { OpenQuizSettings(); };
    m_services.form.chooseDictionaryFolder = [this](const QString &start) {
        return m_services.chooser.ChooseFolder(
            {.title = m_services.form.texts.Get(Text::DictionaryFolderReadOut), .filters = {}, .start = start});
    };
    actions.SetHandler(CommandId::Settings, [this] { OpenSettings(); });
    actions.SetHandler(CommandId::QuizSettings, [this] { OpenQuizSettings(); });
    actions.SetHandler(CommandId::Properties, [this] { OpenProperties(); });
}

void CSettingsCommands::OpenSettings()
{
    const CWordList &list = m_services.document.List();
    m_services.form.languages = {list.GetLanguage(0), list.GetLanguage(1)};
    auto *const dialog = new CSettingsDialog(m_services.form, &m_mainWindow);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void CSettingsCommands::OpenQuizSettings()
{
    const CWordList &list = m_services.document.List();
    QWidget *const opener = QApplication::activeModalWidget();
    auto *const dialog = new CQuizSettingsDialog(
        CQuizSettingsForm(m_services.form.settings.quiz, {list.GetLanguage(0), list.GetLanguage(1)},
            m_services.form.texts, m_services.chooser, m_services.sounds, m_services.dataFolders),
        opener != nullptr ? opener : &m_mainWindow);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this] { m_services.form.changes.Tell(SettingsSection::Quiz); });
    dialog->open();
}

void CSettingsCommands::OpenProperties()
{
    auto *const dialog = new CListPropertiesDialog(
        CListPropertiesForm(m_services.document, m_services.form.texts), &m_mainWindow);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
