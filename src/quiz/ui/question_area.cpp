// SPDX-License-Identifier: MIT
#include "quiz/ui/question_area.h"

#include "quiz/ui/shown_text.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

// Of the question's letters, as a multiple of the window's.
constexpr double Smallest = 1.5;
constexpr double Largest = 2.5;
constexpr double Step = 0.25;

constexpr int LeastLines = 2; // Of the question, in view at any size.
constexpr int Gap = 8; // Between the question and the fields.

}

CQuestionArea::CQuestionArea(const QString &accessibleName, QWidget *parent)
    : QWidget(parent), m_question(new CShownText("question", accessibleName, this)),
      m_fields(new QWidget(this)), m_fieldLayout(new QVBoxLayout(m_fields))
{
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
    m_question->showText(question);
    placeAll();
}

QSize CQuestionArea::sizeFor(int questionLines, const QSize &fields) const
{
    const QFontMetrics metrics(smallestFont());
    return {std::max(fields.width(), metrics.averageCharWidth() * 20),
        metrics.lineSpacing() * questionLines + m_question->margins() + Gap + fields.height()};
}

QSize CQuestionArea::sizeHint() const
{
    return sizeFor(5, m_fields->sizeHint());
}

QSize CQuestionArea::minimumSizeHint() const
{
    return sizeFor(LeastLines, m_fields->minimumSizeHint());
}

void CQuestionArea::placeAll()
{
    // Where there is little room, the fields give some of theirs first.
    const int least = QFontMetrics(smallestFont()).lineSpacing() * LeastLines + m_question->margins() + Gap;
    const int wanted = std::max(m_fields->minimumSizeHint().height(), height() - least);
    const int asked = m_fieldLayout->hasHeightForWidth() ? m_fieldLayout->totalHeightForWidth(width())
                                                         : m_fields->sizeHint().height();
    const int fieldsHeight = std::min({asked, wanted, height()});
    const int room = std::max(height() - fieldsHeight - Gap, 0);
    // Sixty letters by fourteen lines are a small room.
    const double wide = width() / (60.0 * fontMetrics().averageCharWidth());
    const double high = height() / (14.0 * fontMetrics().lineSpacing());
    double factor = std::clamp(Smallest * std::min(wide, high), Smallest, Largest);
    const auto needed = [&] { return m_question->neededHeight(scaledFont(factor), width()); };
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
