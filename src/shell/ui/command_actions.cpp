// SPDX-License-Identifier: MIT
#include "shell/ui/command_actions.h"

#include "platform/ui/drawn_icon.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/text_numbers.h"

#include <QAction>
#include <QActionGroup>

namespace {

/// With the shortcut in the words of the caption.
QString ToolTip(const QString &name, const QString &caption)
{
    const QString shortcut = caption.section(u'\t', 1);
    return shortcut.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, shortcut);
}

}

CCommandActions::CCommandActions(const CTexts &texts, QObject *parent) : QObject(parent), m_texts(texts)
{
    // One of them is always chosen.
    auto *radio = new QActionGroup(this);
    for (const Command &command : CommandTable()) {
        auto *action = new QAction(texts.Get(Text::Caption(command.id)), this);
        // Of one family, also where the desktop has some of them.
        if (!command.icon.isEmpty()) {
            action->setIcon(DrawnIcon(QStringLiteral(":/icons/%1.svg").arg(command.icon)));
        }
        action->setObjectName(QStringLiteral("command%1").arg(command.id));
        QList<QKeySequence> shortcuts;
        for (const QString &shortcut : command.shortcuts) {
            shortcuts.append(QKeySequence(shortcut, QKeySequence::PortableText));
        }
        action->setShortcuts(shortcuts);
        const QString help = texts.Get(command.id);
        action->setStatusTip(help.section(u'\n', 0, 0));
        action->setToolTip(ToolTip(help.section(u'\n', 1), action->text()));
        if (command.kind != CommandKind::Plain) {
            action->setCheckable(true);
            action->setIconVisibleInMenu(false); // There the mark is what shows.
        }
        if (command.kind == CommandKind::Radio) {
            radio->addAction(action);
        }
        action->setEnabled(false);
        m_actions.insert(command.id, action);
    }
}

void CCommandActions::SetHandler(int id, std::function<void()> handler, const std::function<bool()> &isChecked)
{
    m_handled.insert(id);
    if (isChecked) {
        m_checks.insert(id, isChecked);
    }
    connect(
        Action(id), &QAction::triggered, this, [this, id, handler = std::move(handler)] { Run(id, handler); });
}

void CCommandActions::Choose(int id)
{
    Action(id)->trigger();
}

void CCommandActions::Run(int id, const std::function<void()> &handler)
{
    m_prepare(CommandOf(id));
    handler();
    Q_EMIT CommandDone();
}

void CCommandActions::Update(const CommandState &state)
{
    for (const Command &command : CommandTable()) {
        Action(command.id)->setEnabled(m_handled.contains(command.id) && IsCommandEnabled(command, state));
    }
    for (auto check = m_checks.cbegin(); check != m_checks.cend(); ++check) {
        Action(check.key())->setChecked(check.value()());
    }
}

void CCommandActions::UpdateCaptions(const QString &language1, const QString &language2)
{
    if (language1 == m_language1 && language2 == m_language2) {
        return;
    }
    m_language1 = language1;
    m_language2 = language2;
    for (const Command &command : CommandTable()) {
        const QString caption = m_texts.Get(Text::Caption(command.id));
        if (caption.contains(QStringLiteral("%1")) || caption.contains(QStringLiteral("%2"))) {
            Action(command.id)->setText(FillCaption(caption, language1, language2));
        }
    }
}
