// SPDX-License-Identifier: MIT
#include "platform/ui/number_field.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/settings_sheet.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace {

/// A sheet of one page, which the test fills.
class CSheet : public CSettingsSheet
{
public:
    CSheet() : CSettingsSheet(QStringLiteral("sheet"), nullptr) { AddPage(page, QStringLiteral("page")); }

    QWidget *page = new QWidget;

protected:
    void Store() override { }
};

}

class SettingControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedNumbers_data();
    void typedNumbers();
    void pagesThatAreTooHigh();
};

void SettingControlsTest::typedNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("number");
    QTest::newRow("inside") << "42" << 42;
    QTest::newRow("above") << "150" << 100;
    QTest::newRow("far above") << "7000" << 100;
    QTest::newRow("endless") << "123456789012345678901234567890" << 100;
    QTest::newRow("below") << "0" << 5;
    QTest::newRow("a beginning of more") << "1" << 5;
    QTest::newRow("negative") << "-3" << 5;
    QTest::newRow("nothing keeps the last one") << "" << 20;
    QTest::newRow("letters are not taken") << "x6y3" << 63;
}

void SettingControlsTest::typedNumbers()
{
    QFETCH(QString, typed);
    QFETCH(int, number);
    enum End { Leave, Enter, Accept, Arrow };
    for (const End end : {Leave, Enter, Accept, Arrow}) {
        int value = 20;
        CSheet sheet;
        auto *const layout = new QFormLayout(sheet.page);
        CNumberField *const field = MakeNumber(sheet.page, "number", {5, 100}, value);
        AddRow(*layout, QStringLiteral("&Number:"), field, QStringLiteral("percent"));
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
        case Accept:
            sheet.accept(); // By a key of the button, which leaves the focus where it is.
            QCOMPARE(value, number);
            continue;
        case Arrow:
            field->interpretText();
            field->stepBy(number == 100 ? -1 : 1);
            QCOMPARE(value, number == 100 ? 99 : number + 1);
            continue;
        }
        QCOMPARE(value, number);
        QCOMPARE(field->text(), QString::number(number));
    }
}

void SettingControlsTest::pagesThatAreTooHigh()
{
    CSheet sheet;
    auto *const layout = new QVBoxLayout(sheet.page);
    bool value = false;
    QWidget *last = nullptr;
    for (int i = 0; i < 200; ++i) {
        last = MakeCheckBox(sheet.page, "box", QStringLiteral("A box"), value);
        layout->addWidget(last);
    }
    sheet.show();
    QVERIFY(sheet.height() <= sheet.screen()->availableGeometry().height());
    // What gets the focus comes into sight, and nothing is cut off at the side.
    last->setFocus(Qt::TabFocusReason);
    QTest::keyClick(last, Qt::Key_Backtab);
    QTest::keyClick(sheet.focusWidget(), Qt::Key_Tab);
    QVERIFY(!last->visibleRegion().isEmpty());
    QCOMPARE(last->visibleRegion().boundingRect().width(), last->width());
}

QTEST_MAIN(SettingControlsTest)
#include "setting_controls_test.moc"
