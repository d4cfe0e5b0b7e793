// SPDX-License-Identifier: MIT
#include "quiz/ui/quiz_settings_dialog.h"

#include "quiz/ui/quiz_settings1.h"
#include "quiz/ui/quiz_settings2.h"
#include "quiz/ui/quiz_settings3.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

CQuizSettingsDialog::CQuizSettingsDialog(const CQuizSettingsForm &form, QWidget *parent)
    : QDialog(parent), m_form(form)
{
    const CTexts &texts = m_form.texts();
    setWindowTitle(texts.Get(Text::QuizSettingsTitle));
    setWindowModality(Qt::WindowModal);
    auto *pages = new QTabWidget(this);
    pages->setObjectName(QStringLiteral("pages"));
    pages->setAccessibleName(texts.Get(Text::QuizSettingsTitle));
    pages->addTab(new CQuizSettings1(m_form), texts.Get(Text::QuizSettingsGeneralPage));
    pages->addTab(new CQuizSettings2(m_form), texts.Get(Text::QuizSettingsWordsPage));
    pages->addTab(new CQuizSettings3(m_form), texts.Get(Text::QuizSettingsMistakesPage));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(pages, 1);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &CQuizSettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CQuizSettingsDialog::reject);
}

void CQuizSettingsDialog::accept()
{
    m_form.Accept();
    QDialog::accept();
}
