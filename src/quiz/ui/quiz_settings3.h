// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CQuizSettingsForm;
class QCheckBox;
class QFormLayout;
class QGridLayout;
class QGroupBox;
class QLabel;

/// The page of quiz settings on judging and on what follows an answer.
class CQuizSettings3 : public QWidget
{
    Q_OBJECT

public:
    explicit CQuizSettings3(CQuizSettingsForm &form, QWidget *parent = nullptr);

private:
    /// The names of the controls, the texts and the settings of one of the two sounds.
    struct Sound
    {
        const char *switchName;
        const char *fieldName;
        int caption;
        int file;
        int browse;
        int listen;
        bool &play;
        QString &fileName;
    };
    void addSound(QGridLayout &grid, const Sound &sound);
    QGroupBox *makeRequiz();
    void updateEnabled();

    CQuizSettingsForm &m_form;
    QCheckBox *m_requizMax = nullptr;
    QWidget *m_requizNumber = nullptr;
    QLabel *m_times = nullptr;
};
