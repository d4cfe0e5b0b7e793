// SPDX-License-Identifier: MIT
#pragma once

#include "settings/quiz_settings.h"

#include <QDialog>

class CTexts;
class IUserPrompt;
class QGridLayout;

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
    /// The names of the controls, the caption and the settings of one of the two limits.
    struct Limit
    {
        const char *switchName;
        const char *numberName;
        int caption;
        bool &isOn;
        int &percent;
    };
    void addLimit(QGridLayout &grid, const Limit &limit);
    void addUnasked(QGridLayout &grid);

    ResultSettings &m_settings;
    ResultSettings m_values; // What the controls show.
    const CTexts &m_texts;
    IUserPrompt &m_prompt;
};
