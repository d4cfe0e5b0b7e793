// SPDX-License-Identifier: MIT
#pragma once

#include "editor/arranging.h"
#include "editor/ui/win32_view.h"
#include "editor/ui/word_list_control.h"
#include "support/test_document.h"
#include "support/widgets.h"

#include <QVBoxLayout>

/// The real view in a window with another edit box.
struct View
{
    View() : View(QStringList()) { }
    explicit View(const QString &entries) : View(entries.split(u',')) { }
    explicit View(const QStringList &entries) : test(entries)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&view);
        layout->addWidget(&other);
        window.resize(700, 500);
        window.show();
        QApplication::setActiveWindow(&window);
        List()->setFocus();
        QObject::connect(
            &view, &CWin32View::SortRequested, &view, [this](int field) { arranging.SortOrTurn(field); });
        QObject::connect(
            &view, &CWin32View::InvertFlagsRequested, &view, [this] { arranging.SetFlags(FlagMode::Toggle); });
        QObject::connect(&view, &CWin32View::FlagClicked, &view, [this](const QPersistentModelIndex &cell) {
            const auto flag = view.FlagOf(cell);
            arranging.ToggleFlag(flag->first, flag->second);
        });
    }
    void Flip(bool EditorSettings::*setting)
    {
        test.settings.*setting = !(test.settings.*setting);
        test.settingsChanges.Tell(SettingsSection::Editor);
    }

    CWordListControl *List() { return view.findChild<CWordListControl *>(); }
    QLineEdit *Editor()
    {
        auto *const box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        return box != nullptr && box->objectName() == QStringLiteral("cellEditor") ? box : nullptr;
    }
    QLineEdit *Field(int field) { return view.findChild<QLineEdit *>(QStringLiteral("field%1").arg(field)); }
    QPoint Place(int row, int column, int dx)
    {
        return List()->visualRect(List()->model()->index(row, column)).topLeft() + QPoint(dx, 5);
    }
    QString Entries() const { return test.Entries(); }
    QString Entry(int entry) const { return Describe(test.document.List().Entry(entry)); }
    QString Selected() const
    {
        QStringList entries;
        for (const int entry : view.SelectedEntries()) {
            entries.append(QString::number(entry));
        }
        return entries.join(u' ');
    }

    TestDocument test;
    CRandom random{1};
    QWidget window;
    QLineEdit other;
    CWin32View view{{test.document, test.allSettings, test.settingsChanges, test.texts, test.prompt}};
    CArranging arranging{view, test.document, test.allSettings.arrange, random};
};
