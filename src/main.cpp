// SPDX-License-Identifier: MIT
#include "shell/ui/ordelin_app.h"

int main(int argc, char *argv[])
{
    COrdelinApp app(argc, argv);
    const int error = app.InitInstance();
    return error != 0 ? error : QApplication::exec();
}
