// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CQuizSettingsForm;
class QCheckBox;
class QFormLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QSpinBox;

/// The page of quiz settings on judging and on what follows an answer.
class CQuizSettings3 : public QWidget
{
    Q_OBJECT

public:
    explicit CQuizSettings3(CQuizSettingsForm &form, QWidget *parent = nullptr);

private:
    /// The texts and the settings of one of the two sounds.
    struct Sound
    {
        int caption;
        int file;
        int browse;
        bool &play;
        QString &fileName;
    };
    void AddSound(QGridLayout &grid, const char *name, const Sound &sound);
    QGroupBox *MakeRequiz();
    void UpdateEnabled();

    CQuizSettingsForm &m_form;
    QCheckBox *m_requizMax = nullptr;
    QSpinBox *m_requizNumber = nullptr;
    QLabel *m_times = nullptr;
};
