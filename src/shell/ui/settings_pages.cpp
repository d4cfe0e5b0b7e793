// SPDX-License-Identifier: MIT
#include "shell/ui/settings_pages.h"

#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "shell/settings_form.h"
#include "shell/text_numbers.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// A box on the page with a title of its own; what is added to it stands one below the other.
QVBoxLayout *AddGroup(QVBoxLayout &page, const char *name, const QString &title)
{
    auto *const group = new QGroupBox(title, page.parentWidget());
    group->setObjectName(QLatin1StringView(name));
    page.addWidget(group);
    return new QVBoxLayout(group);
}

QFormLayout *AddForm(QVBoxLayout &layout)
{
    auto *const form = new QFormLayout;
    layout.addLayout(form);
    return form;
}

QString Preview(const CTexts &texts, const QString &text)
{
    return texts.Fill(Text::NewListPreview, {ShownShort(text)});
}

}

QWidget *MakeEditingSettingsPage(CEditingSettingsForm &form, const CTexts &texts)
{
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    const auto addCheck = [&](QVBoxLayout &group, const char *name, int caption, bool &value) {
        QCheckBox *const box = MakeCheckBox(group.parentWidget(), name, texts.Get(caption), value);
        group.addWidget(box);
        return box;
    };

    QVBoxLayout *const entries = AddGroup(*layout, "newEntries", texts.Get(Text::NewEntriesGroup));
    addCheck(*entries, "lang1first", Text::BeginWithLanguage1, form.values.lang1first);
    addCheck(*entries, "quickedit", Text::TypeWithoutEnter, form.values.quickedit);
    addCheck(*entries, "sortNewWords", Text::SortNewEntries, form.values.sortNewWords);
    addCheck(*entries, "newwordflag", Text::FlagNewEntries, form.values.newwordflag);

    QVBoxLayout *const checks = AddGroup(*layout, "checks", texts.Get(Text::ChecksGroup));
    addCheck(*checks, "duplicateVarning", Text::WarnOfSimilar, form.values.duplicateVarning);
    addCheck(*checks, "synonymWarning", Text::SuggestSeparators, form.values.synonymWarning);
    QCheckBox *const check = addCheck(
        *checks, "duplicateCheckBeforeQuiz", Text::CheckBeforeQuiz, form.values.duplicateCheckBeforeQuiz);
    const QList<QWidget *> maximum = AddRow(*AddForm(*checks), texts.Get(Text::CheckedEntries),
        MakeNumber(checks->parentWidget(), "duplilcateCheckBeforeQuizMax", CEditingSettingsForm::CheckedEntries,
            form.values.duplilcateCheckBeforeQuizMax));
    const auto updateEnabled = [maximum, &form] { SetAllEnabled(maximum, form.IsMaximumUsed()); };
    QObject::connect(check, &QCheckBox::toggled, page, updateEnabled);
    updateEnabled();

    QVBoxLayout *const undo = AddGroup(*layout, "undo", texts.Get(Text::UndoGroup));
    CNumberField *const steps =
        MakeNumber(undo->parentWidget(), "undoSize", CEditingSettingsForm::UndoSteps, form.values.undoSize);
    AddRow(*AddForm(*undo), texts.Get(Text::UndoSteps), steps);
    const QString hint = texts.Get(Text::UndoStepsHint);
    steps->setAccessibleDescription(hint);
    undo->addWidget(MakeWrappedLabel(hint, undo->parentWidget()));
    addCheck(*undo, "alwaysSaveInUnicode", Text::AlwaysUnicode, form.values.alwaysSaveInUnicode);
    layout->addStretch(1);
    return page;
}

QWidget *MakeNewListSettingsPage(CNewListSettingsForm &form, const CTexts &texts)
{
    auto *const page = new QWidget;
    auto *const rows = new QFormLayout(page);
    const auto addField = [&](const char *name, int caption, QString &value) {
        CLongLineEdit *const field = MakeTextField(page, name, texts.Get(Text::LongText), value);
        AddLabelledRow(*rows, texts.Get(caption), field);
        return field;
    };
    const auto addPreview = [&](const char *name) {
        QLabel *const preview = MakeWrappedLabel({}, page);
        preview->setObjectName(QLatin1StringView(name));
        rows->addRow(QString(), preview);
        return preview;
    };
    QList<CLongLineEdit *> fields = {addField("language1", Text::NewListLanguage1, form.values.language1),
        addField("language2", Text::NewListLanguage2, form.values.language2),
        addField("author", Text::NewListAuthor, form.values.author),
        addField("standardComments", Text::NewListComments, form.values.standardComments)};
    QLabel *const comments = addPreview("commentsPreview");
    fields.append(addField("standardFilename", Text::NewListFileName, form.values.standardFilename));
    QLabel *const fileName = addPreview("fileNamePreview");
    rows->addRow(MakeWrappedLabel(texts.Get(Text::NewListVariables), page));

    const auto update = [=, &form, &texts] {
        comments->setText(Preview(texts, form.Comments()));
        fileName->setText(Preview(texts, form.FileName()));
        fields.at(3)->setAccessibleDescription(comments->text());
        fields.at(4)->setAccessibleDescription(fileName->text());
    };
    for (const CLongLineEdit *const field : fields) {
        QObject::connect(field, &CLongLineEdit::textChanged, page, update);
    }
    update();
    return page;
}

QWidget *MakeViewSettingsPage(CViewSettingsForm &form, const CTexts &texts)
{
    auto *const page = new QWidget;
    auto *const layout = new QVBoxLayout(page);
    const auto addCheck = [&](const char *name, int caption, bool &value) {
        layout->addWidget(MakeCheckBox(page, name, texts.Get(caption), value));
    };
    addCheck("showWordNumber", Text::ShowNumbers, form.values.showWordNumber);
    addCheck("showNotes", Text::ShowNotes, form.values.showNotes);
    addCheck("showEditFields", Text::ShowFields, form.values.showEditFields);
    layout->addWidget(MakeWrappedLabel(texts.Get(Text::ViewMenuHint), page));
    layout->addStretch(1);
    return page;
}
