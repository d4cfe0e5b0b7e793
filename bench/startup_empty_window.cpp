// SPDX-License-Identifier: MIT
#include "first_paint.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

#include <cstring>

/// An empty window of the toolkit: a main window with an empty menu bar and status line, or with "--bare" a
/// widget without anything, for which the toolkit doesn't even look for fonts.
int main(int argc, char *argv[])
{
    const bool bare = argc > 1 && std::strcmp(argv[1], "--bare") == 0;
    const QApplication app(argc, argv);
    QMainWindow main;
    QWidget widget;
    QWidget *const window = bare ? &widget : &main;
    if (!bare) {
        main.menuBar()->addMenu(QString());
        main.statusBar()->showMessage(QStringLiteral("x"));
    }
    window->resize(900, 650);
    const CFirstPaint firstPaint(window);
    window->show();
    return QApplication::exec();
}
