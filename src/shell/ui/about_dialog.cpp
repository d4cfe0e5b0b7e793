// SPDX-License-Identifier: MIT
#include "shell/ui/about_dialog.h"

#include "platform/ui/label.h"
#include "resources/texts.h"
#include "shell/text_numbers.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>

CAboutDialog::CAboutDialog(const CTexts &texts, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(texts.Get(Text::AboutTitle));
    setWindowModality(Qt::WindowModal);

    QLabel *const picture = MakeLabel({}, this);
    picture->setPixmap(QApplication::windowIcon().pixmap(64));
    picture->setAccessibleName(texts.Get(Text::ApplicationTitle));
    auto *layout = new QGridLayout(this);
    layout->addWidget(picture, 0, 0, 4, 1, Qt::AlignTop);
    layout->setHorizontalSpacing(fontMetrics().averageCharWidth() * 2);
    layout->setVerticalSpacing(fontMetrics().lineSpacing() / 2);

    const auto addText = [&](int row, const QString &text, const char *name) {
        QLabel *const label = MakeWrappedLabel(text, this);
        label->setObjectName(QLatin1StringView(name));
        label->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
        layout->addWidget(label, row, 1);
        return label;
    };
    auto *name = addText(0, texts.Fill(Text::AboutName, {QApplication::applicationVersion()}), "name");
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    name->setFont(large);
    addText(1, texts.Get(Text::AboutPurpose), "purpose");
    addText(2, texts.Get(Text::AboutLicence), "licence");
    addText(3,
        texts.Fill(Text::AboutMaker, {QApplication::organizationName(), QString::fromLatin1(qVersion())}),
        "maker");

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons, 4, 0, 1, 2);
}
