// SPDX-License-Identifier: MIT
#include "quiz/ui/question_area.h"

#include "platform/plain_text.h"
#include "platform/ui/wrapped_text.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <cmath>

namespace {

// Of the question's letters, as a multiple of the window's.
constexpr double Smallest = 1.5;
constexpr double Largest = 2.5;
constexpr double Step = 0.25;

constexpr int LeastLines = 2; // Of the question, in view at any size.
constexpr int Gap = 8; // Between the question and the fields.
constexpr int Slack = 4; // Rounded heights must not bring a scroll bar.

}

CQuestionArea::CQuestionArea(const QString &accessibleName, QWidget *parent)
    : QWidget(parent), m_question(new QPlainTextEdit(this)), m_fields(new QWidget(this)),
      m_fieldLayout(new QVBoxLayout(m_fields))
{
    m_question->setObjectName(QStringLiteral("question"));
    m_question->setAccessibleName(accessibleName);
    m_question->setReadOnly(true);
    m_question->setTabChangesFocus(true);
    // It is to be read, so it doesn't look like a field to write in.
    m_question->setFrameShape(QFrame::NoFrame);
    m_question->viewport()->setBackgroundRole(QPalette::Window);
    m_fieldLayout->setContentsMargins({});
}

QFont CQuestionArea::scaledFont(double factor) const
{
    QFont scaled = font();
    scaled.setPointSizeF(scaled.pointSizeF() * factor);
    return scaled;
}

QFont CQuestionArea::smallestFont() const
{
    return scaledFont(Smallest);
}

void CQuestionArea::setQuestion(const QString &question)
{
    // A term may be longer than anybody reads.
    constexpr qsizetype Longest = 1000;
    m_question->setPlainText(ShownShort(question, Longest));
    placeAll();
}

QSize CQuestionArea::sizeFor(int questionLines, const QSize &fields) const
{
    const QFontMetrics metrics(smallestFont());
    return {std::max(fields.width(), metrics.averageCharWidth() * 20),
        metrics.lineSpacing() * questionLines + margins() + Gap + fields.height()};
}

QSize CQuestionArea::sizeHint() const
{
    return sizeFor(5, m_fields->sizeHint());
}

QSize CQuestionArea::minimumSizeHint() const
{
    return sizeFor(LeastLines, m_fields->minimumSizeHint());
}

int CQuestionArea::margins() const
{
    return 2 * int(std::ceil(m_question->document()->documentMargin())) + Slack;
}

void CQuestionArea::placeAll()
{
    // Where there is little room, the fields give some of theirs first.
    const int least = QFontMetrics(smallestFont()).lineSpacing() * LeastLines + margins() + Gap;
    const int wanted = std::max(m_fields->minimumSizeHint().height(), height() - least);
    const int fieldsHeight = std::min({m_fields->sizeHint().height(), wanted, height()});
    const int room = std::max(height() - fieldsHeight - Gap, 0);
    const QString question = m_question->toPlainText();
    // Sixty letters by fourteen lines are a small room.
    const double wide = width() / (60.0 * fontMetrics().averageCharWidth());
    const double high = height() / (14.0 * fontMetrics().lineSpacing());
    double factor = std::clamp(Smallest * std::min(wide, high), Smallest, Largest);
    const auto needed = [&] {
        return WrappedHeight(question, scaledFont(factor), width() - margins()) + margins();
    };
    while (factor > Smallest && needed() > room) {
        factor = std::max(factor - Step, Smallest);
    }
    const int questionHeight = std::min(needed(), room);
    const int top = (room - questionHeight) / 2;
    m_question->setFont(scaledFont(factor));
    m_question->setGeometry(0, top, width(), questionHeight);
    m_fields->setGeometry(0, top + questionHeight + Gap, width(), fieldsHeight);
}

void CQuestionArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeAll();
}

bool CQuestionArea::event(QEvent *event)
{
    // A field came, went or wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        placeAll();
    }
    return QWidget::event(event);
}
