// SPDX-License-Identifier: MIT
#include "games/ui/answer_list.h"

#include <QScrollBar>
#include <QVBoxLayout>

CAnswerList::CAnswerList(QWidget *parent)
    : CScrollingPage(new QWidget, parent), m_layout(new QVBoxLayout(widget()))
{
    m_layout->setContentsMargins({});
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CAnswerList::addAnswer(QWidget *answer)
{
    m_layout->addWidget(answer);
}

void CAnswerList::bringIntoSight(QWidget &answer)
{
    if (answer.height() > viewport()->height()) {
        verticalScrollBar()->setValue(answer.y());
    } else {
        ensureWidgetVisible(&answer, 0, 0);
    }
}

int CAnswerList::heightForWidth(int width) const
{
    return m_layout->totalHeightForWidth(width);
}

QSize CAnswerList::minimumSizeHint() const
{
    // Two answers of one line.
    const QSize least = m_layout->minimumSize();
    return {least.width() + verticalScrollBar()->sizeHint().width(),
        std::min(least.height(), fontMetrics().lineSpacing() * 5)};
}
