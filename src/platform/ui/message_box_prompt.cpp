// SPDX-License-Identifier: MIT
#include "platform/ui/message_box_prompt.h"

#include "platform/ui/held_enter.h"
#include "platform/ui/owner_window.h"
#include "platform/ui/type_ahead_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QStyle>

namespace {

QMessageBox::Icon BoxIcon(PromptIcon icon)
{
    switch (icon) {
    case PromptIcon::Information:
        return QMessageBox::Information;
    case PromptIcon::Question:
        return QMessageBox::Question;
    case PromptIcon::Warning:
        return QMessageBox::Warning;
    case PromptIcon::Error:
        return QMessageBox::Critical;
    case PromptIcon::PlainInformation:
        break; // A picture alone; see Show().
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton BoxButton(PromptAnswer answer)
{
    switch (answer) {
    case PromptAnswer::Yes:
        return QMessageBox::Yes;
    case PromptAnswer::No:
        return QMessageBox::No;
    case PromptAnswer::Cancel:
        return QMessageBox::Cancel;
    }
    return QMessageBox::NoButton;
}

/// A message box whose buttons are not chosen by letters alone: those may be meant for what it stands in front
/// of.
class CPromptBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool withCommandKey =
            (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) != 0;
        if (!withCommandKey && !event->text().isEmpty() && event->text().at(0).isPrint()) {
            event->accept();
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }
};

int Show(const PromptText &text, PromptIcon icon, QMessageBox::StandardButtons buttons,
    QMessageBox::StandardButton defaultButton, CTypeAheadFilter *typeAhead = nullptr)
{
    CPromptBox box(BoxIcon(icon), QApplication::applicationDisplayName(), text.text, buttons, OwnerWindow());
    box.setObjectName(QStringLiteral("prompt%1").arg(text.number));
    box.setTextFormat(Qt::PlainText);
    if (icon == PromptIcon::PlainInformation) {
        const QStyle &style = *box.style();
        const int size = style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
        box.setIconPixmap(style.standardIcon(QStyle::SP_MessageBoxInformation, nullptr, &box).pixmap(size));
    }
    box.setDefaultButton(defaultButton);
    box.setWindowModality(box.parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    IgnoreHeldEnter(box);
    return typeAhead != nullptr && box.parentWidget() != nullptr ? typeAhead->Ask(box) : box.exec();
}

PromptAnswer ShowQuestion(const PromptText &text, PromptIcon icon, PromptButtons buttons,
    PromptAnswer defaultAnswer, CTypeAheadFilter *typeAhead)
{
    QMessageBox::StandardButtons boxButtons = QMessageBox::Yes | QMessageBox::No;
    boxButtons.setFlag(QMessageBox::Cancel, buttons == PromptButtons::YesNoCancel);
    switch (Show(text, icon, boxButtons, BoxButton(defaultAnswer), typeAhead)) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    default:
        return buttons == PromptButtons::YesNoCancel ? PromptAnswer::Cancel : PromptAnswer::No;
    }
}

}

CMessageBoxPrompt::CMessageBoxPrompt(Clock clock)
    : m_typeAhead(std::make_unique<CTypeAheadFilter>(std::move(clock)))
{
}

CMessageBoxPrompt::~CMessageBoxPrompt() = default;

void CMessageBoxPrompt::Tell(const PromptText &text, PromptIcon icon)
{
    Show(text, icon, QMessageBox::Ok, QMessageBox::Ok);
}

PromptAnswer CMessageBoxPrompt::Ask(
    const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer)
{
    return ShowQuestion(text, icon, buttons, defaultAnswer, nullptr);
}

PromptAnswer CMessageBoxPrompt::AskTypist(
    const PromptText &text, PromptIcon icon, PromptButtons buttons, PromptAnswer defaultAnswer)
{
    return ShowQuestion(text, icon, buttons, defaultAnswer, m_typeAhead.get());
}

bool CMessageBoxPrompt::TypingGoesOn() const
{
    return m_typeAhead->TypingGoesOn();
}

QString CMessageBoxPrompt::TypedMeanwhile() const
{
    return m_typeAhead->KeptText();
}
