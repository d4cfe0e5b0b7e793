// SPDX-License-Identifier: MIT
#include "platform/ui/label.h"

#include "platform/plain_text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>

QLabel *MakeLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel *MakeWrappedLabel(const QString &text, QWidget *parent)
{
    QLabel *const label = MakeLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

QLabel *AddLabelledRow(QFormLayout &form, const QString &caption, QWidget *control)
{
    QLabel *const label = MakeLabel(caption, control->parentWidget());
    label->setBuddy(control);
    control->setAccessibleName(CaptionReadOut(caption));
    form.addRow(label, control);
    return label;
}

CPlainTextRule::CPlainTextRule()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool CPlainTextRule::eventFilter(QObject *watched, QEvent *event)
{
    // Sent to every widget once, before it measures or shows its text. The toolkit's tool tips are labels too.
    if (event->type() == QEvent::Polish) {
        auto *const label = qobject_cast<QLabel *>(watched);
        if (label != nullptr && label->textFormat() != Qt::PlainText) {
            label->setTextFormat(Qt::PlainText);
        }
    }
    return QObject::eventFilter(watched, event);
}
