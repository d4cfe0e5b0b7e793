// SPDX-License-Identifier: MIT
#include "shell/ui/ordelin_app.h"

int main(int argc, char *argv[])
{
    COrdelinApp app(argc, argv);
    const int error = app.InitInstance();
    if (error != 0) {
        return error;
    }
    const int result = QApplication::exec();
    app.ExitInstance();
    return result;
}
