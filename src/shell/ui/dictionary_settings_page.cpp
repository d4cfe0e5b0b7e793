// SPDX-License-Identifier: MIT
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"
#include "shell/commands.h"
#include "shell/settings_form.h"
#include "shell/text_numbers.h"
#include "shell/ui/settings_pages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

/// The fields grow with the window; names and paths may be far longer.
constexpr int LeastCharacters = 20;

void ShowDictionaries(
    QComboBox &choice, const CDictionarySettingsForm &form, int direction, const CTexts &texts)
{
    const QString guessed = form.Guessed(direction);
    QStringList items = {guessed.isEmpty() ? texts.Get(Text::NoDictionaryFound)
                                           : texts.Fill(Text::DictionaryFound, {ShownShort(guessed)}),
        texts.Get(Text::NoDictionary)};
    for (const QString &name : form.Names()) {
        items.append(ShownShort(name));
    }
    QStringList before;
    for (int index = 0; index < choice.count(); ++index) {
        before.append(choice.itemText(index));
    }
    const QSignalBlocker blocker(choice);
    // Screen readers are told of each item, and would drown in them with every letter of a folder's name.
    if (items != before) {
        choice.clear();
        choice.addItems(items);
    }
    choice.setCurrentIndex(form.Choice(direction));
    ReadOutItem(choice);
}

}

QWidget *MakeDictionarySettingsPage(CSettingsForm &sheet)
{
    CDictionarySettingsForm &form = sheet.dictionaries;
    const CTexts &texts = sheet.Services().texts;
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    QCheckBox *const suggest =
        MakeCheckBox(page, "suggest", texts.Get(Text::SuggestTranslations), form.values.suggest);
    layout->addWidget(suggest);
    auto *const rows = new QFormLayout;
    layout->addLayout(rows);

    QList<QComboBox *> choices;
    for (int direction = 0; direction < CDictionarySettingsForm::Directions; ++direction) {
        QComboBox *const choice = MakeChoice(page, direction == 0 ? "dictionary1" : "dictionary2", {}, 0,
            [&form, direction](int index) { form.Choose(direction, index); });
        // A name may be long.
        choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        choice->setMinimumContentsLength(LeastCharacters);
        AddRow(*rows,
            FillCaption(
                texts.Get(Text::DictionaryDirection1 + direction), form.From(direction), form.To(direction)),
            choice);
        QObject::connect(choice, &QComboBox::currentTextChanged, page,
            [page](const QString &item) { SayInWindowOf(*page, item); });
        choices.append(choice);
    }
    const auto [folder, browse] =
        MakeFileField(page, "dictionaryFolder", texts.Get(Text::DictionaryFolderReadOut),
            texts.Get(Text::DictionaryBrowse), form.values.folder, [&sheet](const QString &current) {
                const QString chosen = sheet.Services().chooseDictionaryFolder(current);
                return chosen.isEmpty() ? current : chosen;
            });
    folder->setMinimumWidth(page->fontMetrics().averageCharWidth() * LeastCharacters);
    auto *const folderRow = new QHBoxLayout;
    folderRow->addWidget(folder, 1);
    folderRow->addWidget(browse);
    auto *const folderLabel = MakeLabel(texts.Get(Text::DictionaryFolder), page);
    folderLabel->setBuddy(folder);
    rows->addRow(folderLabel, folderRow);
    QLabel *const count = MakeWrappedLabel({}, page);
    count->setObjectName(QStringLiteral("dictionaryCount"));
    rows->addRow(QString(), count);
    layout->addWidget(MakeWrappedLabel(texts.Get(Text::DictionaryHint), page));
    layout->addStretch(1);

    const auto show = [&form, &texts, choices, count, folder = folder] {
        for (qsizetype direction = 0; direction < choices.size(); ++direction) {
            ShowDictionaries(*choices.at(direction), form, int(direction), texts);
        }
        count->setText(form.InstalledCount() == 0
                ? texts.Get(Text::NoDictionaries)
                : texts.Fill(Text::DictionaryCount, {QString::number(form.InstalledCount())}));
        folder->setAccessibleDescription(count->text());
    };
    QObject::connect(folder, &QLineEdit::textChanged, page, [&form, show, page, count] {
        const QString before = count->text();
        form.FindInstalled();
        show();
        if (count->text() != before) {
            SayInWindowOf(*page, count->text());
        }
    });
    const auto updateEnabled = [&form, choices, folder = folder, browse = browse] {
        for (QComboBox *const choice : choices) {
            choice->setEnabled(form.values.suggest);
        }
        folder->setEnabled(form.values.suggest);
        browse->setEnabled(form.values.suggest);
    };
    QObject::connect(suggest, &QCheckBox::toggled, page, updateEnabled);
    show();
    updateEnabled();
    return page;
}
