// SPDX-License-Identifier: MIT
#include "quiz/ui/accept_answer_bar.h"

#include "platform/plain_text.h"
#include "platform/ui/elided_label.h"
#include "quiz/text_numbers.h"
#include "resources/texts.h"

#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr Qt::Key Key = Qt::Key_F8;

QString keyName()
{
    return QKeySequence(Key).toString(QKeySequence::NativeText);
}

}

CAcceptAnswerBar::CAcceptAnswerBar(const CTexts &texts, QWidget *window)
    : QWidget(window), m_texts(texts), m_button(new QPushButton(this)), m_line(new CElidedLabel(this))
{
    m_button->setObjectName(QStringLiteral("acceptAnswerButton"));
    m_button->setFocusPolicy(Qt::TabFocus); // A click leaves the focus where the next answer is typed.
    m_button->setAutoDefault(false);
    m_button->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    const QString hint = texts.Fill(Text::AcceptAnswerHint, {keyName()});
    m_button->setToolTip(hint);
    m_button->setAccessibleDescription(hint);
    m_line->setObjectName(QStringLiteral("acceptedLine"));
    // A shortcut of the button's own would take the place of its mnemonic.
    auto *shortcut = new QShortcut(Key, window);
    shortcut->setAutoRepeat(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_button, 0, Qt::AlignLeft);
    layout->addWidget(m_line);

    connect(shortcut, &QShortcut::activated, m_button, &QPushButton::click);
    connect(m_button, &QPushButton::clicked, this, &CAcceptAnswerBar::pressed);
    showOffer({});
}

QString CAcceptAnswerBar::shownLine() const
{
    return m_line->text();
}

void CAcceptAnswerBar::showOffer(const AcceptOffer &offer)
{
    m_caption = acceptCaption(offer, m_texts);
    m_button->setAccessibleName(CaptionReadOut(m_caption));
    showCaption();
    m_button->setEnabled(offer.kind != AcceptOffer::Kind::Nothing);
    m_line->ShowText(acceptedLine(offer, keyName(), m_texts));
}

void CAcceptAnswerBar::showCaption()
{
    const int room = width() - fontMetrics().averageCharWidth() * 4; // The rest is for the button's frame.
    m_button->setText(fontMetrics().elidedText(m_caption, Qt::ElideRight, room, Qt::TextShowMnemonic));
}

void CAcceptAnswerBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showCaption();
}
