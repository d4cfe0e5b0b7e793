// SPDX-License-Identifier: MIT
#include "first_paint.h"
#include "shell/ui/main_frame.h"
#include "shell/ui/ordelin_app.h"

int main(int argc, char *argv[])
{
    COrdelinApp app(argc, argv);
    const int error = app.InitInstance();
    if (error != 0) {
        return error;
    }
    const CFirstPaint firstPaint(app.MainFrame());
    return QApplication::exec();
}
