// SPDX-License-Identifier: MIT
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/settings_sheet.h"
#include "support/test.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>

namespace {

/// A sheet of one page, which the test fills.
class CSheet : public CSettingsSheet
{
public:
    CSheet() : CSettingsSheet(u"sheet"_s, nullptr) { AddPage(page, u"page"_s); }

    QWidget *page = new QWidget;

protected:
    void Store() override { }
};

}

class SettingControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedNumbers()
    {
        const std::pair<const char *, int> rows[] = {
            {"42", 42}, {"150", 100}, {"7000", 100}, {"123456789012345678901234567890", 100}, {"0", 5},
            {"1", 5}, // a beginning of more
            {"-3", 5}, {"", 20}, // nothing keeps the last one
            {"x6y3", 63}, // letters are not taken
        };
        for (const auto &[typed, number] : rows) {
            for (const End end : {Leave, Enter, Accept, Arrow}) {
                TypeNumber(QString::fromLatin1(typed), number, end);
            }
        }
    }

    void pagesThatAreTooHigh()
    {
        CSheet sheet;
        auto *const layout = new QVBoxLayout(sheet.page);
        bool value = false;
        QWidget *last = nullptr;
        for (int i = 0; i < 200; ++i) {
            last = MakeCheckBox(sheet.page, "box", u"A box"_s, value);
            layout->addWidget(last);
        }
        sheet.show();
        QVERIFY(sheet.height() <= sheet.screen()->availableGeometry().height());
        // What gets the focus comes into sight, by its letter too, and nothing is cut off at the side.
        QApplication::setActiveWindow(&sheet);
        last->setFocus(Qt::ShortcutFocusReason);
        QVERIFY(!last->visibleRegion().isEmpty());
        QCOMPARE(last->visibleRegion().boundingRect().width(), last->width());
    }

private:
    enum End { Leave, Enter, Accept, Arrow };

    /// Types into a field from 5 to 100 that shows 20, and ends that in one of the ways.
    static void TypeNumber(const QString &typed, int number, End end)
    {
        int value = 20;
        CSheet sheet;
        auto *const layout = new QFormLayout(sheet.page);
        CNumberField *const field = MakeNumber(sheet.page, "number", {5, 100}, value);
        AddRow(*layout, u"&Number:"_s, field, u"percent"_s);
        auto *const other = new QLineEdit(sheet.page);
        layout->addRow(other);
        sheet.show();
        sheet.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&sheet));
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, typed);
        switch (end) {
        case Leave:
            other->setFocus();
            break;
        case Enter:
            QTest::keyClick(field, Qt::Key_Return);
            QVERIFY(!sheet.isVisible());
            break;
        // By a key of the button, which leaves the focus where it is.
        case Accept:
            sheet.accept();
            break;
        case Arrow:
            field->interpretText();
            field->stepBy(number == 100 ? -1 : 1);
            number += number == 100 ? -1 : 1;
        }
        QCOMPARE(value, number);
        QVERIFY(end == Accept || field->text() == QString::number(number));
    }
};

QTEST_MAIN(SettingControlsTest)
#include "setting_controls_test.moc"
