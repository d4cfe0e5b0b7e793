// SPDX-License-Identifier: MIT
#include "platform/ui/elided_label.h"
#include "platform/ui/label.h"

#include <QAction>
#include <QApplication>
#include <QFormLayout>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

namespace {

/// A text that shows a high picture from a file where it is taken for markup.
struct Markup
{
    QTemporaryDir folder;
    QString text;

    Markup()
    {
        const QString path = folder.filePath(QStringLiteral("picture.png"));
        QImage picture(3, 900, QImage::Format_RGB32);
        picture.fill(Qt::red);
        if (!picture.save(path)) {
            qFatal("No picture");
        }
        text = QStringLiteral("<img src=\"%1\">").arg(path);
    }
};

const QLabel *ShownToolTip()
{
    for (const QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel") && window->isVisible()) {
            return qobject_cast<const QLabel *>(window);
        }
    }
    return nullptr;
}

void AskForToolTip(QWidget &widget)
{
    const QPoint place = widget.rect().center();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
}

}

class LabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsReadNoFile();
    void toolTipsReadNoFile();
    void endlessLines();
};

void LabelTest::labelsReadNoFile()
{
    const Markup markup;
    QWidget window;
    QFormLayout form(&window);
    auto *const field = new QLineEdit(&window);
    const QLabel *const made = AddLabelledRow(form, markup.text + u':', field);
    QVERIFY(made->sizeHint().height() < 200);
    QCOMPARE(made->buddy(), field);
    QCOMPARE(field->accessibleName(), markup.text);

    // Those that the toolkit makes.
    const CPlainTextRule rule;
    form.addRow(markup.text, new QLineEdit(&window));
    window.show();
    QVERIFY(window.height() < 400);
    QMessageBox box(QMessageBox::Information, QString(), markup.text);
    box.setInformativeText(markup.text);
    box.show();
    QVERIFY(box.height() < 400);
}

void LabelTest::toolTipsReadNoFile()
{
    const Markup markup;
    const CPlainTextRule rule;
    QToolButton button;
    QAction action;
    action.setToolTip(markup.text);
    button.setDefaultAction(&action);
    QTableWidget table(1, 1);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("x")));
    table.item(0, 0)->setToolTip(markup.text);
    for (QWidget *const widget : std::initializer_list<QWidget *>{&button, table.viewport()}) {
        widget->window()->show();
        if (widget == &button) {
            AskForToolTip(button);
        } else {
            const QPoint place = table.visualItemRect(table.item(0, 0)).center();
            QHelpEvent event(QEvent::ToolTip, place, widget->mapToGlobal(place));
            QApplication::sendEvent(widget, &event);
        }
        QVERIFY(ShownToolTip() != nullptr);
        QCOMPARE(ShownToolTip()->text(), markup.text);
        QVERIFY(ShownToolTip()->height() < 200);
        QToolTip::hideText();
        delete ShownToolTip();
    }
}

void LabelTest::endlessLines()
{
    CElidedLabel line;
    line.ShowText(QString(1000000, u'x'));
    line.show();
    AskForToolTip(line);
    QVERIFY(ShownToolTip() != nullptr);
    QCOMPARE(ShownToolTip()->text().size(), 1000);
    QCOMPARE(line.minimumSizeHint().width(), 0);
    line.ShowText(QStringLiteral("x"));
    QToolTip::hideText();
    delete ShownToolTip();
    line.resize(200, 30);
    AskForToolTip(line);
    QVERIFY(ShownToolTip() == nullptr);
}

QTEST_MAIN(LabelTest)
#include "label_test.moc"
