// SPDX-License-Identifier: MIT
#include "quiz/ui/accept_answer_button.h"

#include "platform/plain_text.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QPushButton>
#include <QShortcut>

QPushButton *makeAcceptAnswerButton(const CTexts &texts, QWidget *window)
{
    const QKeySequence key(Qt::Key_F8);
    auto *button = new QPushButton(texts.Get(Text::AcceptAnswer), window);
    button->setObjectName(QStringLiteral("acceptAnswerButton"));
    button->setFocusPolicy(Qt::TabFocus); // A click leaves the focus where the next answer is typed.
    button->setEnabled(false);
    const QString hint = texts.Fill(Text::AcceptAnswerHint, {key.toString(QKeySequence::NativeText)});
    button->setToolTip(ShownAsPlainText(hint));
    button->setAccessibleDescription(hint);
    // A shortcut of the button's own would take the place of its mnemonic.
    auto *shortcut = new QShortcut(key, window);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    return button;
}
