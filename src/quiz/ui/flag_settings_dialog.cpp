// SPDX-License-Identifier: MIT
#include "quiz/ui/flag_settings_dialog.h"

#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/user_prompt.h"
#include "quiz/quiz_result.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"
#include "settings/quiz_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

CFlagSettingsDialog::CFlagSettingsDialog(
    ResultSettings &settings, const CTexts &texts, IUserPrompt &prompt, QWidget *parent)
    : QDialog(parent), m_settings(settings), m_texts(texts), m_prompt(prompt)
{
    setObjectName(QStringLiteral("flagSettings"));
    setWindowTitle(texts.Get(Text::FlagSettingsTitle));
    setWindowModality(Qt::WindowModal);

    auto *grid = new QGridLayout;
    m_flag = addSwitch(*grid, Text::FlagWordsAtLeast, "flagWord", settings.flagWord);
    m_flagLimit = addLimit(*grid, *m_flag, "flagWordLimit", settings.flagWordLimit);
    m_unflag = addSwitch(*grid, Text::UnflagWordsAtMost, "unFlagWord", settings.unFlagWord);
    m_unflagLimit = addLimit(*grid, *m_unflag, "unFlagWordLimit", settings.unFlagWordLimit);
    m_unasked = addSwitch(*grid, Text::ChangeUnaskedTo, "changeUnasked", settings.changeUnasked);
    m_unaskedTo = new QComboBox(this);
    m_unaskedTo->setObjectName(QStringLiteral("changeUnaskedTo"));
    m_unaskedTo->setAccessibleName(m_unasked->accessibleName());
    m_unaskedTo->addItems(texts.Get(Text::FlagStates).split(u'\n'));
    m_unaskedTo->setCurrentIndex(settings.changeUnaskedTo);
    m_unaskedTo->setEnabled(settings.changeUnasked);
    connect(m_unasked, &QCheckBox::toggled, m_unaskedTo, &QWidget::setEnabled);
    grid->addWidget(m_unaskedTo, grid->rowCount() - 1, 1, 1, 2, Qt::AlignLeft);
    grid->setColumnStretch(2, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addWidget(buttons);
}

QCheckBox *CFlagSettingsDialog::addSwitch(QGridLayout &grid, int text, const char *name, bool on)
{
    auto *box = new QCheckBox(m_texts.Get(text), this);
    box->setObjectName(QLatin1StringView(name));
    box->setAccessibleName(m_texts.Get(text).remove(u'&').trimmed());
    box->setChecked(on);
    grid.addWidget(box, grid.count() == 0 ? 0 : grid.rowCount(), 0);
    return box;
}

CNumberField *CFlagSettingsDialog::addLimit(QGridLayout &grid, QCheckBox &toggle, const char *name, int value)
{
    auto *limit = new CNumberField({0, 100}, value, this);
    limit->setObjectName(QLatin1StringView(name));
    limit->setAccessibleName(toggle.accessibleName() + u' ' + m_texts.Get(Text::PercentRight));
    limit->setEnabled(toggle.isChecked());
    connect(&toggle, &QCheckBox::toggled, limit, &QWidget::setEnabled);
    QLabel *const unit = MakeLabel(m_texts.Get(Text::PercentRight), this);
    grid.addWidget(limit, grid.rowCount() - 1, 1);
    grid.addWidget(unit, grid.rowCount() - 1, 2);
    return limit;
}

void CFlagSettingsDialog::accept()
{
    ResultSettings settings = m_settings;
    settings.flagWord = m_flag->isChecked();
    settings.flagWordLimit = m_flagLimit->Entered();
    settings.unFlagWord = m_unflag->isChecked();
    settings.unFlagWordLimit = m_unflagLimit->Entered();
    settings.changeUnasked = m_unasked->isChecked();
    settings.changeUnaskedTo = m_unaskedTo->currentIndex();
    if (flagLimitsContradict(settings)) {
        m_prompt.Tell(m_texts.Prompt(Text::FlagLimitsContradict), PromptIcon::Information);
        return;
    }
    m_settings = settings;
    QDialog::accept();
}
