// SPDX-License-Identifier: MIT
#include "games/ui/answer_button.h"

#include "games/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/wrapped_text.h"
#include "resources/texts.h"

#include <QIcon>
#include <QPainter>

CAnswerButton::CAnswerButton(const CTexts &texts, int number, QWidget *parent)
    : QPushButton(parent), m_texts(texts), m_digit(QString::number(number + 1))
{
    setObjectName(QStringLiteral("answer") + m_digit);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CAnswerButton::showAnswer(const QString &answer, const QString &spoken)
{
    m_answer = ShownShort(answer);
    m_verdict.reset();
    setAccessibleName(spoken);
    setAccessibleDescription({});
    updateGeometry();
    update();
}

void CAnswerButton::mark(AnswerVerdict verdict)
{
    m_verdict = verdict;
    setAccessibleDescription(verdictText(verdict));
    update();
}

QString CAnswerButton::verdictText(AnswerVerdict verdict) const
{
    return m_texts.Get(verdict == AnswerVerdict::Wrong ? Text::AnswerIsWrong : Text::AnswerIsRight);
}

QFont CAnswerButton::boldFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

int CAnswerButton::digitWidth() const
{
    return QFontMetrics(boldFont()).horizontalAdvance(m_digit) + 2 * gap();
}

int CAnswerButton::markWidth() const
{
    const int widest = std::max(fontMetrics().horizontalAdvance(verdictText(AnswerVerdict::Right)),
        fontMetrics().horizontalAdvance(verdictText(AnswerVerdict::Wrong)));
    return lineHeight() + widest + 3 * gap();
}

QSize CAnswerButton::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return {least.width() + gap() * 10, least.height()};
}

QSize CAnswerButton::minimumSizeHint() const
{
    return {digitWidth() + gap() * 10 + markWidth(), lineHeight() + 2 * gap()};
}

int CAnswerButton::heightForWidth(int width) const
{
    const int room = std::max(width - digitWidth() - markWidth(), 1);
    return WrappedHeight(m_answer, font(), room) + 2 * gap();
}

void CAnswerButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::ButtonText));
    // A message stands over the middle and the right.
    const int mark = m_verdict ? markWidth() : 0;
    const QRect room = rect().adjusted(digitWidth() + mark, gap(), mark - markWidth(), -gap());
    PaintWrapped(painter, m_answer, font(), room);
    if (m_verdict) {
        const bool isWrong = *m_verdict == AnswerVerdict::Wrong;
        const QIcon icon(
            isWrong ? QStringLiteral(":/pictures/wrong.svg") : QStringLiteral(":/pictures/right.svg"));
        const QRect place(digitWidth(), room.top(), lineHeight(), lineHeight());
        icon.paint(&painter, place);
        painter.drawText(rect().adjusted(place.right() + gap(), gap(), 0, 0),
            int(Qt::AlignTop) | int(Qt::AlignLeft) | int(Qt::TextSingleLine), verdictText(*m_verdict));
    }
    painter.setFont(boldFont());
    // Beside the first line, which is in sight when a long term scrolls.
    painter.drawText(rect().adjusted(gap(), gap(), 0, 0), int(Qt::AlignTop) | int(Qt::AlignLeft), m_digit);
}
