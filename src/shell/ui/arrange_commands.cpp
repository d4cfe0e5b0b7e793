// SPDX-License-Identifier: MIT
#include "shell/ui/arrange_commands.h"

#include "editor/arranging.h"
#include "editor/ui/win32_view.h"
#include "platform/ui/wait_cursor.h"
#include "settings/settings_changes.h"
#include "settings/shell_settings.h"
#include "shell/commands.h"
#include "shell/ui/command_actions.h"

#include <QApplication>
#include <QKeyEvent>

using namespace CommandId;

CArrangeCommands::CArrangeCommands(CCommandActions &actions, CWin32View &view, CArranging &arranging,
    ArrangeSettings &settings, CSettingsChanges &settingsChanges, QObject *parent)
    : QObject(parent)
{
    const auto sort = [&arranging](int field) {
        const CWaitCursor wait;
        arranging.Sort(field);
    };
    for (const int command : {Shuffle, SortByLanguage1, SortByLanguage2, SortByNote}) {
        actions.SetHandler(command, [sort, command] { sort(command - SortByLanguage1); });
    }
    connect(&view, &CWin32View::SortRequested, this, [&actions, &arranging, &settingsChanges](int field) {
        actions.Run(SortByLanguage1 + field, [&arranging, &settingsChanges, field] {
            const CWaitCursor wait;
            if (arranging.SortOrTurn(field)) {
                settingsChanges.Tell(SettingsSection::Arrange);
            }
        });
    });
    connect(&arranging.Order(), &CListOrder::Changed, &view, [&arranging, &view] {
        const auto &order = arranging.Order().Current();
        view.ShowOrder(order ? std::optional(order->field) : std::nullopt, order && order->options.ascending);
    });
    for (const auto &[command, option] : {std::pair(Descending, &ArrangeSettings::descending),
             {GroupFlagged, &ArrangeSettings::groupFlagged}, {SortByLength, &ArrangeSettings::byLength}}) {
        bool &value = settings.*option;
        actions.SetHandler(
            command,
            [&value, &settingsChanges] {
                value = !value;
                settingsChanges.Tell(SettingsSection::Arrange);
            },
            [&value] { return value; });
    }
    for (const auto &[command, up, part] :
        {std::tuple(MoveUp, true, MovedPart::Entry), {MoveDown, false, MovedPart::Entry},
            {MoveColumnUp, true, MovedPart::Field}, {MoveColumnDown, false, MovedPart::Field}}) {
        actions.SetHandler(
            command, [this, &arranging, up = up, part = part] { arranging.MoveRows(up, part, m_keyRepeats); });
    }
    actions.SetHandler(MoveLeft, [&arranging] { arranging.MoveFields(-1); });
    actions.SetHandler(MoveRight, [&arranging] { arranging.MoveFields(1); });
    connect(&view, &CWin32View::RowsDropped, this,
        [&actions, &arranging](int row) { actions.Run(MoveUp, [&arranging, row] { arranging.MoveTo(row); }); });
    qApp->installEventFilter(this);
}

bool CArrangeCommands::eventFilter(QObject *watched, QEvent *event)
{
    // Each key is announced before it is taken for a shortcut.
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        // A held key may also be told as one that is released and pressed again at the same moment.
        constexpr quint64 Moment = 10; // In milliseconds.
        const auto *const key = static_cast<QKeyEvent *>(event);
        const bool atOnce = key->key() == m_releasedKey && key->timestamp() - m_releasedAt < Moment;
        m_keyRepeats = key->isAutoRepeat() || atOnce;
        break;
    }
    case QEvent::KeyRelease: {
        const auto *const key = static_cast<QKeyEvent *>(event);
        m_releasedKey = key->key();
        m_releasedAt = key->timestamp();
        break;
    }
    case QEvent::MouseButtonPress:
        m_keyRepeats = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
