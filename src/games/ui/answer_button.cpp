// SPDX-License-Identifier: MIT
#include "games/ui/answer_button.h"

#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/label.h"
#include "platform/ui/wrapped_text.h"
#include "resources/texts.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

CAnswerButton::CAnswerButton(const CTexts &texts, int number, const QFont &font, QWidget *parent)
    : QPushButton(parent), m_texts(texts), m_answer(new CWrappedText({}, this))
{
    setFont(font);
    const QString digit = QString::number(number + 1);
    setObjectName(QStringLiteral("answer") + digit);
    new QHBoxLayout(this);
    QFont bold = font;
    bold.setBold(true);
    addLabel(digit)->setFont(bold);
    m_answer->setForegroundRole(QPalette::ButtonText);
    m_answer->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout()->addWidget(m_answer);
    m_icon = addLabel({});
    m_icon->setFixedSize(QSize(1, 1) * fontMetrics().height());
    m_verdict = addLabel({});
    m_verdict->setObjectName(QStringLiteral("verdict"));
    const QFontMetrics metrics(m_verdict->font());
    m_verdict->setMinimumWidth(std::max(metrics.horizontalAdvance(texts.Get(Text::AnswerIsRight)),
        metrics.horizontalAdvance(texts.Get(Text::AnswerIsWrong))));
    static_cast<QHBoxLayout *>(layout())->setStretchFactor(m_answer, 1);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QLabel *CAnswerButton::addLabel(const QString &text)
{
    QLabel *const label = MakeLabel(text, this);
    label->setForegroundRole(QPalette::ButtonText);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout()->addWidget(label);
    return label;
}

void CAnswerButton::showAnswer(const QString &answer, const QString &spoken)
{
    m_answer->ShowText(ShownShort(answer));
    setAccessibleName(spoken);
    setAccessibleDescription({});
    m_icon->clear();
    m_verdict->clear();
}

void CAnswerButton::mark(AnswerVerdict verdict)
{
    const bool isWrong = verdict == AnswerVerdict::Wrong;
    const QIcon icon(isWrong ? QStringLiteral(":/pictures/wrong.svg") : QStringLiteral(":/pictures/right.svg"));
    m_icon->setPixmap(icon.pixmap(m_icon->size(), devicePixelRatioF()));
    m_verdict->setText(m_texts.Get(isWrong ? Text::AnswerIsWrong : Text::AnswerIsRight));
    setAccessibleDescription(m_verdict->text());
}

QSize CAnswerButton::sizeHint() const
{
    return layout()->sizeHint();
}

QSize CAnswerButton::minimumSizeHint() const
{
    return layout()->minimumSize();
}
