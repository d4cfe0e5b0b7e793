// SPDX-License-Identifier: MIT
#include "first_paint.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    QWidget window;
    window.resize(900, 650);
    const CFirstPaint firstPaint(&window);
    window.show();
    return QApplication::exec();
}
