// SPDX-License-Identifier: MIT
#include "window_part.h"

#include "commandline/ui/table_pdf_file.h"
#include "shell/ui/ordelin_app.h"

namespace {

int RunWindow(int &argc, char **argv, const QString &file, bool newList)
{
    COrdelinApp app(argc, argv);
    return app.Run(file, newList);
}

}

const WindowPart *OrdelinWindowPart()
{
    static constexpr WindowPart part = {.run = RunWindow, .writePdf = WriteTablePdf};
    return &part;
}
