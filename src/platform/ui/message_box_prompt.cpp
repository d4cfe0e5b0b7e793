// SPDX-License-Identifier: MIT
#include "platform/ui/message_box_prompt.h"

#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/owner_window.h"
#include "platform/ui/type_ahead_filter.h"
#include "platform/ui/wait_cursor.h"
#include "platform/ui/wrapped_text.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
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
/// of. Its text is shown to its end, and scrolls where the screen is too low for it.
class CPromptBox : public QMessageBox
{
public:
    CPromptBox(const QString &text, PromptIcon icon, StandardButtons buttons, QWidget *owner)
        : QMessageBox(BoxIcon(icon), QApplication::applicationDisplayName(), text, buttons, owner)
    {
        // The user may have chosen a font for the window that it belongs to.
        if (owner != nullptr && owner->testAttribute(Qt::WA_SetFont)) {
            setFont(owner->font());
        }
        if (icon == PromptIcon::PlainInformation) {
            const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
            setIconPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation, nullptr, this).pixmap(size));
        }
        // The toolkit's own label cuts long words off, and grows out of the screen.
        auto *const grid = qobject_cast<QGridLayout *>(layout());
        auto *const label = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        const int place = grid != nullptr && label != nullptr ? grid->indexOf(label) : -1;
        if (place >= 0) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(place, &row, &column, &rows, &columns);
            label->hide();
            grid->addWidget(MakeText(text), row, column, rows, columns);
        }
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (m_bar != nullptr && Scroll(event->key())) {
            return;
        }
        const bool withCommandKey =
            (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) != 0;
        if (!withCommandKey && !event->text().isEmpty() && event->text().at(0).isPrint()) {
            event->accept();
        } else {
            QMessageBox::keyPressEvent(event);
        }
    }

private:
    QWidget *MakeText(const QString &text)
    {
        constexpr qsizetype Longest = 20000; // Nobody reads more.
        auto *const area = new QScrollArea(this);
        auto *const shown = new CWrappedText(ShownShort(text, Longest), area);
        area->setWidget(shown);
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        area->setFocusPolicy(Qt::NoFocus);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->viewport()->setAutoFillBackground(false);
        shown->setAutoFillBackground(false);
        m_bar = area->verticalScrollBar();
        const QSize screenSize = screen()->availableSize();
        // The toolkit bounds the window's width; beside the text it has room for its icon.
        const int widest =
            screenSize.width() <= 1024 ? screenSize.width() : std::min(screenSize.width() - 480, 1000);
        const int width = std::min(shown->sizeHint().width(), widest * 3 / 4);
        const int height = shown->heightForWidth(width);
        const int highest = screenSize.height() * 3 / 5; // The rest is for the buttons and the frame.
        // Told, since the area itself would count on less width once the bar was there.
        const bool scrolls = height > highest;
        area->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        area->setFixedSize(scrolls ? width + m_bar->sizeHint().width() : width, std::min(height, highest));
        return area;
    }
    /// Whether the key scrolls the text: its buttons stand beside each other.
    bool Scroll(int key)
    {
        switch (key) {
        case Qt::Key_Up:
            m_bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return true;
        case Qt::Key_Down:
            m_bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return true;
        case Qt::Key_PageUp:
            m_bar->triggerAction(QAbstractSlider::SliderPageStepSub);
            return true;
        case Qt::Key_PageDown:
            m_bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
            return true;
        default:
            return false;
        }
    }

    QScrollBar *m_bar = nullptr; // Of the text.
};

int Show(const PromptText &text, PromptIcon icon, QMessageBox::StandardButtons buttons,
    QMessageBox::StandardButton defaultButton, CTypeAheadFilter *typeAhead = nullptr)
{
    CPromptBox box(text.text, icon, buttons, OwnerWindow());
    box.setObjectName(QStringLiteral("prompt%1").arg(text.number));
    box.setTextFormat(Qt::PlainText);
    // A window manager would offer to minimise it as well.
    box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    box.setDefaultButton(defaultButton);
    box.setWindowModality(box.parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    NoticeHeldKeys(box);
    const CUsualCursor usual;
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
