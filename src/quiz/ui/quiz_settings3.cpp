// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings3.h"

#include "quiz/ui/setting_controls.h"
#include "resources/text_numbers.h"
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
#include <QSpinBox>

CQuizSettings3::CQuizSettings3(CQuizSettingsForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    const CTexts &texts = form.texts();
    QuizSettings &values = form.values;
    auto *layout = new QVBoxLayout(this);
    auto *check = new QFormLayout;
    addRow(*check, texts.Get(Text::QuizSettingsCheck),
        makeChoice(this, "characterCheck", texts.Get(Text::CharacterChecks), values.characterCheck));
    layout->addLayout(check);
    const auto addCheck = [&](const char *name, int caption, bool &value) {
        layout->addWidget(makeCheckBox(this, name, texts.Get(caption), value));
    };
    addCheck("ignoreCase", Text::QuizSettingsIgnoreCase, values.ignoreCase);
    addCheck("showAnswer", Text::QuizSettingsShowAnswer, values.showAnswer);
    addCheck("showAnswerIfOneCorrect", Text::QuizSettingsShowAnswers, values.showAnswerIfOneCorrect);

    auto *sounds = new QGridLayout;
    AddSound(*sounds, "Right",
        {Text::QuizSettingsPlayRight, Text::QuizSettingsRightFile, Text::QuizSettingsBrowseRight,
            values.playRight, values.rightSoundFile});
    AddSound(*sounds, "Wrong",
        {Text::QuizSettingsPlayWrong, Text::QuizSettingsWrongFile, Text::QuizSettingsBrowseWrong,
            values.playWrong, values.wrongSoundFile});
    layout->addLayout(sounds);
    layout->addWidget(MakeRequiz());
    layout->addStretch(1);
    UpdateEnabled();
}

void CQuizSettings3::AddSound(QGridLayout &grid, const char *name, const Sound &sound)
{
    const CTexts &texts = m_form.texts();
    const QString suffix = QString::fromLatin1(name);
    auto *play = makeCheckBox(this, "", texts.Get(sound.caption), sound.play);
    play->setObjectName(QStringLiteral("play") + suffix);
    auto *file = new QLineEdit(sound.fileName, this);
    file->setObjectName(QStringLiteral("file") + suffix);
    file->setAccessibleName(texts.Get(sound.file));
    auto *browse = new QPushButton(texts.Get(sound.browse), this);
    browse->setObjectName(QStringLiteral("browse") + suffix);
    file->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    const int row = grid.rowCount();
    grid.addWidget(play, row, 0);
    grid.addWidget(file, row, 1);
    grid.addWidget(browse, row, 2);

    connect(file, &QLineEdit::textChanged, this,
        [&stored = sound.fileName](const QString &text) { stored = text; });
    connect(
        browse, &QPushButton::clicked, this, [this, file] { file->setText(m_form.BrowseSound(file->text())); });
}

QGroupBox *CQuizSettings3::MakeRequiz()
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
        auto *radio = makeRadioButton(group, Names[button], texts.Get(Captions[button]),
            CQuizSettingsForm::RequizButtons[button], values.requiz);
        layout->addWidget(radio);
        connect(radio, &QRadioButton::toggled, this, &CQuizSettings3::UpdateEnabled);
    }

    m_requizMax = makeCheckBox(group, "requizMax", texts.Get(Text::QuizSettingsRequizMax), values.requizMax);
    m_requizNumber = makeNumber(group, "requizNumber", CQuizSettingsForm::Others, values.requizNumber);
    m_requizNumber->setAccessibleName(texts.Get(Text::QuizSettingsRequizNumber));
    m_times = makeExplanation(group, texts.Get(Text::QuizSettingsTimes));
    auto *row = new QHBoxLayout;
    row->addWidget(m_requizMax);
    row->addWidget(m_requizNumber);
    row->addWidget(m_times);
    row->addStretch(1);
    layout->addLayout(row);
    connect(m_requizMax, &QCheckBox::toggled, this, &CQuizSettings3::UpdateEnabled);
    return group;
}

void CQuizSettings3::UpdateEnabled()
{
    m_requizMax->setEnabled(m_form.IsRequizMaxUsed());
    m_times->setEnabled(m_form.IsRequizMaxUsed());
    m_requizNumber->setEnabled(m_form.IsRequizNumberUsed());
}
