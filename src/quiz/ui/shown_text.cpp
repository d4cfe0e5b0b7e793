// SPDX-License-Identifier: MIT
#include "quiz/ui/shown_text.h"

#include "platform/plain_text.h"
#include "platform/ui/wrapped_text.h"

#include <cmath>

namespace {

constexpr int Slack = 4; // Rounded heights must not bring a scroll bar.

}

CShownText::CShownText(const char *objectName, const QString &accessibleName, QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QLatin1StringView(objectName));
    setAccessibleName(accessibleName);
    setReadOnly(true);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::Window);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CShownText::showText(const QString &text, const QString &like)
{
    setPlainText(ShownShort(text));
    QTextOption option = document()->defaultTextOption();
    const bool rightToLeft = like.isRightToLeft();
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LayoutDirectionAuto);
    document()->setDefaultTextOption(option);
    updateGeometry();
}

int CShownText::margins() const
{
    return 2 * int(std::ceil(document()->documentMargin())) + Slack;
}

int CShownText::neededHeight(const QFont &font, int width) const
{
    return WrappedHeight(toPlainText(), font, width - margins()) + margins();
}

QSize CShownText::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 20, fontMetrics().lineSpacing() + margins()};
}

QSize CShownText::minimumSizeHint() const
{
    return sizeHint();
}
