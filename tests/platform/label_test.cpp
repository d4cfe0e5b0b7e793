// SPDX-License-Identifier: MIT
#include "platform/ui/elided_label.h"
#include "platform/ui/label.h"
#include "support/test.h"

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
        const QString path = folder.filePath(u"picture.png"_s);
        QImage picture(3, 900, QImage::Format_RGB32);
        picture.fill(Qt::red);
        if (!picture.save(path)) {
            qFatal("No picture");
        }
        text = u"<img src=\"%1\">"_s.arg(path);
    }
};

/// The tool tip that is shown where someone asks for one, or null.
const QLabel *ToolTipAt(QWidget &widget, const QPoint &place)
{
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    for (const QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->inherits("QTipLabel") && window->isVisible()) {
            return qobject_cast<const QLabel *>(window);
        }
    }
    return nullptr;
}

}

class LabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsReadNoFile()
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

    void toolTipsReadNoFile()
    {
        const Markup markup;
        const CPlainTextRule rule;
        QToolButton button;
        QAction action;
        action.setToolTip(markup.text);
        button.setDefaultAction(&action);
        QTableWidget table(1, 1);
        table.setItem(0, 0, new QTableWidgetItem(u"x"_s));
        table.item(0, 0)->setToolTip(markup.text);
        button.show();
        table.show();
        const QPoint inCell = table.visualItemRect(table.item(0, 0)).center();
        for (const auto &[widget, place] :
            {std::pair<QWidget *, QPoint>(&button, button.rect().center()), {table.viewport(), inCell}}) {
            const QLabel *const shown = ToolTipAt(*widget, place);
            QCOMPARE(shown->text(), markup.text);
            QVERIFY(shown->height() < 200);
            QToolTip::hideText();
            delete shown;
        }
    }

    void endlessLines()
    {
        CElidedLabel line;
        line.ShowText(QString(1000000, u'x'));
        line.show();
        const QLabel *const shown = ToolTipAt(line, line.rect().center());
        QCOMPARE(shown->text().size(), 1000);
        QCOMPARE(line.minimumSizeHint().width(), 0);
        QToolTip::hideText();
        delete shown;
        line.ShowText(u"x"_s);
        line.resize(200, 30);
        QVERIFY(ToolTipAt(line, line.rect().center()) == nullptr);
    }
};

QTEST_MAIN(LabelTest)
#include "label_test.moc"
