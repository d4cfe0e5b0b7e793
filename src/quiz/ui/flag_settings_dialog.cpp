// SPDX-License-Identifier: MIT
#include "quiz/ui/flag_settings_dialog.h"

#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_result.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

namespace {

/// The control can be used while the box is checked, and is read out by its caption.
void controlWith(const QCheckBox &box, QWidget &control)
{
    control.setAccessibleName(box.accessibleName());
    control.setEnabled(box.isChecked());
    QObject::connect(&box, &QCheckBox::toggled, &control, &QWidget::setEnabled);
}

}

CFlagSettingsDialog::CFlagSettingsDialog(
    ResultSettings &settings, const CTexts &texts, IUserPrompt &prompt, QWidget *parent)
    : QDialog(parent), m_settings(settings), m_values(settings), m_texts(texts), m_prompt(prompt)
{
    setObjectName(QStringLiteral("flagSettings"));
    setWindowTitle(texts.Get(Text::FlagSettingsTitle));
    setWindowModality(Qt::WindowModal);

    auto *grid = new QGridLayout;
    addLimit(*grid,
        {"flagWord", "flagWordLimit", Text::FlagWordsAtLeast, m_values.flagWord, m_values.flagWordLimit});
    addLimit(*grid,
        {"unFlagWord", "unFlagWordLimit", Text::UnflagWordsAtMost, m_values.unFlagWord,
            m_values.unFlagWordLimit});
    addUnasked(*grid);
    grid->setColumnStretch(2, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &CFlagSettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addWidget(buttons);
    NoticeHeldKeys(*this);
}

void CFlagSettingsDialog::addLimit(QGridLayout &grid, const Limit &limit)
{
    auto *box = MakeCheckBox(this, limit.switchName, m_texts.Get(limit.caption), limit.isOn);
    auto *number = MakeNumber(this, limit.numberName, {0, 100}, limit.percent);
    const QString unit = m_texts.Get(Text::PercentRight);
    controlWith(*box, *number);
    number->setAccessibleName(number->accessibleName() + u' ' + unit);
    const int row = grid.rowCount();
    grid.addWidget(box, row, 0);
    grid.addWidget(number, row, 1);
    grid.addWidget(MakeLabel(unit, this), row, 2);
}

void CFlagSettingsDialog::addUnasked(QGridLayout &grid)
{
    auto *box = MakeCheckBox(this, "changeUnasked", m_texts.Get(Text::ChangeUnaskedTo), m_values.changeUnasked);
    auto *state = MakeChoice(this, "changeUnaskedTo", m_texts.Get(Text::FlagStates), m_values.changeUnaskedTo);
    controlWith(*box, *state);
    const int row = grid.rowCount();
    grid.addWidget(box, row, 0);
    grid.addWidget(state, row, 1, 1, 2, Qt::AlignLeft);
}

void CFlagSettingsDialog::accept()
{
    if (flagLimitsContradict(m_values)) {
        m_prompt.Tell(m_texts.Prompt(Text::FlagLimitsContradict), PromptIcon::Information);
        return;
    }
    m_settings = m_values;
    QDialog::accept();
}
