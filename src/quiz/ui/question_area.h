// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class CShownText;
class QVBoxLayout;

/// The room of a quiz window in which a question is put and answered. Both stand together in its middle; the
/// question's letters grow with the room up to a bound, and what is too long scrolls.
class CQuestionArea : public QWidget
{
    Q_OBJECT

public:
    explicit CQuestionArea(const QString &accessibleName, QWidget *parent);

    void setQuestion(const QString &question);
    /// For the fields below the question.
    QVBoxLayout *fields() const { return m_fieldLayout; }
    /// The font of the question where there is little room.
    QFont smallestFont() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    QFont scaledFont(double factor) const;
    QSize sizeFor(int questionLines, const QSize &fields) const;
    void placeAll();

    CShownText *m_question;
    QWidget *m_fields;
    QVBoxLayout *m_fieldLayout;
};
