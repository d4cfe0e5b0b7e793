// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings3.h"

#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "quiz/quiz_settings_form.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

CQuizSettings3::CQuizSettings3(CQuizSettingsForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    const CTexts &texts = form.texts();
    QuizSettings &values = form.values;
    auto *layout = new QVBoxLayout(this);
    auto *check = new QFormLayout;
    AddRow(*check, texts.Get(Text::QuizSettingsCheck),
        MakeChoice(this, "characterCheck", texts.Get(Text::CharacterChecks), values.characterCheck));
    layout->addLayout(check);
    const auto addCheck = [&](const char *name, int caption, bool &value) {
        layout->addWidget(MakeCheckBox(this, name, texts.Get(caption), value));
    };
    addCheck("ignoreCase", Text::QuizSettingsIgnoreCase, values.ignoreCase);
    addCheck("showAnswer", Text::QuizSettingsShowAnswer, values.showAnswer);
    addCheck("showAnswerIfOneCorrect", Text::QuizSettingsShowAnswers, values.showAnswerIfOneCorrect);

    auto *sounds = new QGridLayout;
    addSound(*sounds,
        {"playRight", "fileRight", Text::QuizSettingsPlayRight, Text::QuizSettingsRightFile,
            Text::QuizSettingsBrowseRight, Text::QuizSettingsPlayRightNow, values.playRight,
            values.rightSoundFile});
    addSound(*sounds,
        {"playWrong", "fileWrong", Text::QuizSettingsPlayWrong, Text::QuizSettingsWrongFile,
            Text::QuizSettingsBrowseWrong, Text::QuizSettingsPlayWrongNow, values.playWrong,
            values.wrongSoundFile});
    layout->addLayout(sounds);
    layout->addWidget(makeRequiz());
    layout->addStretch(1);
    updateEnabled();
}

void CQuizSettings3::addSound(QGridLayout &grid, const Sound &sound)
{
    const CTexts &texts = m_form.texts();
    auto *play = MakeCheckBox(this, sound.switchName, texts.Get(sound.caption), sound.play);
    const FileField file = MakeFileField(this, sound.fieldName, texts.Get(sound.file), texts.Get(sound.browse),
        sound.fileName, [this](const QString &current) { return m_form.browseSound(current); });
    auto *listen = new QPushButton(texts.Get(sound.listen), this);
    listen->setObjectName(file.name->objectName() + QStringLiteral("Play"));
    listen->setAccessibleDescription(texts.Get(sound.file));
    connect(listen, &QPushButton::clicked, this, [this, file] { m_form.playSound(file.name->text()); });
    const int row = grid.rowCount();
    grid.addWidget(play, row, 0);
    grid.addWidget(file.name, row, 1);
    grid.addWidget(file.browse, row, 2);
    grid.addWidget(listen, row, 3);
}

QGroupBox *CQuizSettings3::makeRequiz()
{
    const CTexts &texts = m_form.texts();
    QuizSettings &values = m_form.values;
    auto *group = new QGroupBox(texts.Get(Text::QuizSettingsRequiz), this);
    group->setObjectName(QStringLiteral("requiz"));
    auto *layout = new QVBoxLayout(group);
    constexpr int Captions[] = {
        Text::QuizSettingsNoRequiz, Text::QuizSettingsAskAgain, Text::QuizSettingsRequizAfter};
    constexpr const char *Names[] = {"noRequiz", "askAgain", "requizAfter"};
    for (size_t button = 0; button < std::size(Captions); ++button) {
        auto *radio = MakeRadioButton(group, Names[button], texts.Get(Captions[button]),
            CQuizSettingsForm::RequizButtons[button], values.requiz);
        layout->addWidget(radio);
        connect(radio, &QRadioButton::toggled, this, &CQuizSettings3::updateEnabled);
    }

    m_requizMax = MakeCheckBox(group, "requizMax", texts.Get(Text::QuizSettingsRequizMax), values.requizMax);
    m_requizNumber = MakeNumber(group, "requizNumber", CQuizSettingsForm::Others, values.requizNumber);
    m_requizNumber->setAccessibleName(texts.Get(Text::QuizSettingsRequizNumber));
    m_times = MakeLabel(texts.Get(Text::QuizSettingsTimes), group);
    auto *row = new QHBoxLayout;
    row->addWidget(m_requizMax);
    row->addWidget(m_requizNumber);
    row->addWidget(m_times);
    row->addStretch(1);
    layout->addLayout(row);
    connect(m_requizMax, &QCheckBox::toggled, this, &CQuizSettings3::updateEnabled);
    return group;
}

void CQuizSettings3::updateEnabled()
{
    m_requizMax->setEnabled(m_form.isRequizMaxUsed());
    m_times->setEnabled(m_form.isRequizMaxUsed());
    m_requizNumber->setEnabled(m_form.isRequizNumberUsed());
}
