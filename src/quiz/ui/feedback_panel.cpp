// SPDX-License-Identifier: MIT
#include "quiz/ui/feedback_panel.h"

#include "platform/ui/label.h"
#include "quiz/text_numbers.h"
#include "quiz/ui/difference_style.h"
#include "resources/texts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QTextEdit>

CFeedbackPanel::CFeedbackPanel(const CTexts &texts, QWidget *parent)
    : QWidget(parent), m_icon(MakeLabel({}, this)), m_text(new QTextEdit(this))
{
    m_icon->setFixedSize(QSize(1, 1) * fontMetrics().height());
    m_text->setObjectName(QStringLiteral("feedback"));
    m_text->setAccessibleName(texts.Get(Text::LastAnswer));
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setFocusPolicy(Qt::NoFocus);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->viewport()->setBackgroundRole(QPalette::Window);
    m_text->document()->setDocumentMargin(0);
    m_text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
}

QSize CFeedbackPanel::sizeOf(int lines) const
{
    return {fontMetrics().averageCharWidth() * 20, fontMetrics().lineSpacing() * lines};
}

QSize CFeedbackPanel::sizeHint() const
{
    return sizeOf(4);
}

QSize CFeedbackPanel::minimumSizeHint() const
{
    return sizeOf(2);
}

void CFeedbackPanel::showAnswer(const std::optional<LastAnswer> &answer)
{
    m_answer = answer;
    fill();
}

void CFeedbackPanel::fill()
{
    m_text->setFocusPolicy(m_answer ? Qt::TabFocus : Qt::NoFocus); // To read what scrolls.
    if (!m_answer) {
        m_icon->clear();
        m_text->clear();
        return;
    }
    const QIcon icon(
        m_answer->isRight ? QStringLiteral(":/pictures/right.svg") : QStringLiteral(":/pictures/wrong.svg"));
    m_icon->setPixmap(icon.pixmap(m_icon->size(), devicePixelRatioF()));
    QString html = QStringLiteral("<b>") + m_answer->verdict.toHtmlEscaped() + QStringLiteral("</b>");
    if (!m_answer->entry.isEmpty()) {
        html += QStringLiteral("&nbsp;&nbsp;") + m_answer->entry.toHtmlEscaped();
    }
    if (!m_answer->difference.isEmpty()) {
        html += QStringLiteral("<br>") + m_answer->difference;
    }
    m_text->document()->setDefaultStyleSheet(differenceStyle(palette()));
    m_text->setHtml(html);
}

void CFeedbackPanel::changeEvent(QEvent *event)
{
    // The colours of the marks belong to the palette.
    if (event->type() == QEvent::PaletteChange) {
        fill();
    }
    QWidget::changeEvent(event);
}
