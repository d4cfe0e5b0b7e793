// SPDX-License-Identifier: MIT
#include "tools/ui/table_guide3.h"

#include "platform/ui/color_button.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "resources/texts.h"
#include "tools/table_guide_form.h"
#include "tools/text_numbers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr NumberRange Borders{0, 30};

}

CTableGuide3::CTableGuide3(CTableGuideForm &form, QWidget *parent) : QWidget(parent), m_form(form)
{
    const CTexts &texts = form.Texts();
    CreateTableSettings &options = form.Options();
    QWidget *const format = MakeFormat();
    QCheckBox *const showTitle =
        MakeCheckBox(this, "showTitle", texts.Get(Text::TableTitle), options.showTitle);
    CLongLineEdit *const title = MakeTextField(this, "title", texts.Get(Text::LongText), options.title);
    title->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    title->setAccessibleName(texts.Get(Text::TableTitleText));
    title->setEnabled(showTitle->isChecked());
    connect(showTitle, &QCheckBox::toggled, title, &QWidget::setEnabled);
    auto *const line = new QHBoxLayout;
    line->addWidget(showTitle);
    line->addWidget(title, 1);
    m_look = MakeLook();

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(format);
    layout->addLayout(line);
    layout->addWidget(m_look);
    layout->addStretch(1);
    UpdateEnabled();
}

QWidget *CTableGuide3::MakeFormat()
{
    const CTexts &texts = m_form.Texts();
    bool &htmlFormat = m_form.Options().htmlFormat;
    auto *const group = new QGroupBox(texts.Get(Text::TableFormatGroup), this);
    auto *const layout = new QHBoxLayout(group);
    for (const auto &[name, caption, value] :
        {std::tuple("asPage", Text::TableAsPage, true), {"asText", Text::TableAsText, false}}) {
        QRadioButton *const button = MakeRadioButton(group, name, texts.Get(caption), value, htmlFormat);
        connect(button, &QRadioButton::toggled, this, &CTableGuide3::UpdateEnabled);
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return group;
}

QWidget *CTableGuide3::MakeLook()
{
    const CTexts &texts = m_form.Texts();
    CreateTableSettings &options = m_form.Options();
    auto *const look = new QGroupBox(texts.Get(Text::TableLookPage), this);
    look->setObjectName(QStringLiteral("look"));
    auto *const layout = new QVBoxLayout(look);
    layout->addWidget(
        MakeCheckBox(look, "fullTableWidth", texts.Get(Text::TableFullWidth), options.fullTableWidth));
    auto *const border = new QFormLayout;
    AddRow(*border, texts.Get(Text::TableBorder), MakeNumber(look, "border", Borders, options.border),
        texts.Get(Text::TableBorderUnit));
    layout->addLayout(border);

    const auto addCheck = [&](const char *name, int caption, bool &value) {
        QCheckBox *const box = MakeCheckBox(look, name, texts.Get(caption), value);
        connect(box, &QCheckBox::toggled, this, &CTableGuide3::UpdateEnabled);
        return box;
    };
    const auto addLine = [&](const QList<QWidget *> &widgets) {
        auto *const line = new QHBoxLayout;
        for (QWidget *const widget : widgets) {
            line->addWidget(widget);
        }
        line->addStretch(1);
        layout->addLayout(line);
    };
    addLine({MakeColor("colorBackground", Text::TablePageBackground, Text::TablePageBackground,
                 options.colorBackground),
        MakeColor("colorText", Text::TableTextColor, Text::TableTextColor, options.colorText)});
    QWidget *const ownBackground =
        addCheck("setTableBackground", Text::TableOwnBackground, options.setTableBackground);
    m_tableColor = MakeColor(
        "colorTableBackground", Text::TableColor, Text::TableTableColor, options.colorTableBackground);
    addLine({ownBackground, m_tableColor});
    QCheckBox *const special = addCheck("specialDoChange", Text::TableSpecial, options.specialDoChange);
    QComboBox *const cells =
        MakeChoice(look, "specialChange", m_form.Choices(Text::TableSpecialChoices), options.specialChange);
    cells->setAccessibleName(special->accessibleName());
    m_special = cells;
    m_specialColor = MakeColor("colorSpecial", Text::TableColor, Text::TableSpecialColor, options.colorSpecial);
    addLine({special, m_special, m_specialColor});
    return look;
}

CColorButton *CTableGuide3::MakeColor(const char *name, int caption, int readOut, quint32 &value)
{
    const CTexts &texts = m_form.Texts();
    auto *const button = new CColorButton(texts.Get(caption), texts.Get(readOut).remove(u'&'), value, this);
    button->setObjectName(QLatin1StringView(name));
    return button;
}

void CTableGuide3::UpdateEnabled()
{
    if (m_specialColor == nullptr) {
        return; // While the page is made.
    }
    const CreateTableSettings &options = m_form.Options();
    m_look->setEnabled(options.htmlFormat);
    m_tableColor->setEnabled(options.setTableBackground);
    m_special->setEnabled(options.specialDoChange);
    m_specialColor->setEnabled(options.specialDoChange);
}
