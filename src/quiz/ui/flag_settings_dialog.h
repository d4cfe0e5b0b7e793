// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class CNumberField;
class CTexts;
class IUserPrompt;
class QCheckBox;
class QComboBox;
class QGridLayout;
struct ResultSettings;

/// The window for the limits by which a quiz changes flags. OK stores them, unless they contradict each other.
class CFlagSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Nothing is owned.
    CFlagSettingsDialog(
        ResultSettings &settings, const CTexts &texts, IUserPrompt &prompt, QWidget *parent = nullptr);

    void accept() override;

private:
    QCheckBox *addSwitch(QGridLayout &grid, int text, const char *name, bool on);
    CNumberField *addLimit(QGridLayout &grid, QCheckBox &toggle, const char *name, int value);

    ResultSettings &m_settings;
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
    QCheckBox *m_flag;
    CNumberField *m_flagLimit;
    QCheckBox *m_unflag;
    CNumberField *m_unflagLimit;
    QCheckBox *m_unasked;
    QComboBox *m_unaskedTo;
};
