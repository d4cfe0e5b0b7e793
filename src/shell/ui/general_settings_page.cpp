// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "shell/settings_form.h"
#include "shell/text_numbers.h"
#include "shell/ui/settings_pages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int SampleLines = 5; // Of the desktop's font; a larger one scrolls.

/// The fonts that there are, to choose from, and room for the name of one that there isn't.
QComboBox *MakeFontChoice(QWidget *parent, QString &name)
{
    auto *const choice = new QComboBox(parent);
    choice->setObjectName(QStringLiteral("fontName"));
    choice->setEditable(true);
    choice->setInsertPolicy(QComboBox::NoInsert);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(20);
    choice->addItems(QFontDatabase::families());
    choice->setCurrentIndex(choice->findText(name));
    choice->setEditText(name);
    QObject::connect(
        choice, &QComboBox::currentTextChanged, choice, [&name](const QString &text) { name = text; });
    return choice;
}

QScrollArea *MakeSample(QWidget *parent, const CTexts &texts, QLabel *sample)
{
    auto *const area = new QScrollArea(parent);
    area->setWidget(sample);
    area->setWidgetResizable(true);
    area->setFixedHeight(area->fontMetrics().lineSpacing() * SampleLines);
    area->setAccessibleName(texts.Get(Text::FontSampleName));
    return area;
}

void AddFont(QVBoxLayout &page, CGeneralSettingsForm &form, const CTexts &texts)
{
    MiscSettings &values = form.values;
    auto *const group = new QGroupBox(texts.Get(Text::FontGroup), page.parentWidget());
    group->setObjectName(QStringLiteral("font"));
    page.addWidget(group);
    auto *const rows = new QFormLayout(group);
    QCheckBox *const own =
        MakeCheckBox(group, "useOtherFont", texts.Get(Text::UseOwnFont), values.useOtherFont);
    rows->addRow(own);
    QComboBox *const name = MakeFontChoice(group, values.fontName);
    CNumberField *const size = MakeNumber(group, "fontSize", CGeneralSettingsForm::FontSizes, values.fontSize);
    QList<QWidget *> used = AddRow(*rows, texts.Get(Text::FontName), name);
    name->lineEdit()->setAccessibleName(CaptionReadOut(texts.Get(Text::FontName))); // Which has the focus.
    used += AddRow(*rows, texts.Get(Text::FontSize), size, texts.Get(Text::FontUnit));
    used.append(MakeCheckBox(
        group, "useOtherFontQuizOnly", texts.Get(Text::FontInQuizzesOnly), values.useOtherFontQuizOnly));
    rows->addRow(used.last());
    QLabel *const sample = MakeLabel(texts.Get(Text::FontSample), nullptr);
    sample->setObjectName(QStringLiteral("fontSample"));
    rows->addRow(MakeSample(group, texts, sample));

    const auto update = [used, sample, &form] {
        SetAllEnabled(used, form.IsFontUsed());
        sample->setFont(form.IsFontUsed() ? QFont(form.values.fontName, form.values.fontSize) : QFont());
    };
    QObject::connect(own, &QCheckBox::toggled, group, update);
    QObject::connect(name, &QComboBox::currentTextChanged, group, update);
    QObject::connect(size, &CNumberField::NumberEntered, group, update);
    update();
}

}

QWidget *MakeGeneralSettingsPage(CSettingsForm &form, const std::function<void()> &reset)
{
    const SettingsFormServices &services = form.Services();
    const CTexts &texts = services.texts;
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    layout->addWidget(
        MakeCheckBox(page, "autoOpen", texts.Get(Text::OpenLastFile), form.general.values.autoOpen));
    AddFont(*layout, form.general, texts);

    auto *const buttons = new QGridLayout;
    const auto addButton = [&](const char *name, int caption, const std::function<void()> &clicked) {
        auto *const button = new QPushButton(texts.Get(caption), page);
        button->setObjectName(QLatin1StringView(name));
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, page, clicked);
        const int count = buttons->count();
        buttons->addWidget(button, count / 2, count % 2);
    };
    addButton("chooseLanguage", Text::ChooseLanguage, services.chooseLanguage);
    addButton("associate", Text::AssociateFiles, services.associateFiles);
    addButton("quizSettings", Text::OpenQuizSettings, services.openQuizSettings);
    addButton("reset", Text::ResetSettings, reset);
    layout->addLayout(buttons);
    layout->addStretch(1);
    return page;
}
