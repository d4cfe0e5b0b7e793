// SPDX-License-Identifier: MIT
#include "first_paint.h"
#include "shell/ui/main_frame.h"
#include "shell/ui/ordelin_app.h"

#include <QFile>

int main(int argc, char *argv[])
{
    COrdelinApp app(argc, argv);
    if (!app.InitInstance(QFile::decodeName(argv[argc - 1]), false)) {
        return 1;
    }
    const CFirstPaint firstPaint(&app.MainFrame());
    return QApplication::exec();
}
