// SPDX-License-Identifier: MIT
#include "resources/qt_texts.h"

#include "resources/texts.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace {

/// The toolkit's name of a text and our number for it; the same words mean the same wherever they stand.
struct ToolkitText
{
    QByteArrayView source;
    int number;
};

constexpr std::array ToolkitTexts = {
    ToolkitText{"OK", 63510},
    ToolkitText{"&OK", 63510},
    ToolkitText{"Cancel", 62800},
    ToolkitText{"&Cancel", 62800},
    ToolkitText{"Apply", 70172},
    ToolkitText{"&Apply", 70172},
    ToolkitText{"Close", 62801},
    ToolkitText{"&Close", 62801},
    ToolkitText{"&Yes", 70050},
    ToolkitText{"&No", 70051},
    ToolkitText{"Look in:", 70100},
    ToolkitText{"Back", 70101},
    ToolkitText{"Go back", 70101},
    ToolkitText{"Forward", 70102},
    ToolkitText{"Go forward", 70102},
    ToolkitText{"Parent Directory", 70103},
    ToolkitText{"Go to the parent directory", 70103},
    ToolkitText{"Create New Folder", 70104},
    ToolkitText{"Create a New Folder", 70104},
    ToolkitText{"List View", 70105},
    ToolkitText{"Change to list view mode", 70105},
    ToolkitText{"Detail View", 70106},
    ToolkitText{"Change to detail view mode", 70106},
    ToolkitText{"Sidebar", 70107},
    ToolkitText{"List of places and bookmarks", 70107},
    ToolkitText{"Files", 70108},
    ToolkitText{"Directory:", 70109},
    ToolkitText{"File &name:", 70110},
    ToolkitText{"&Open", 70111},
    ToolkitText{"Open", 70137},
    ToolkitText{"&Save", 70112},
    ToolkitText{"Save", 70112},
    ToolkitText{"Save As", 70138},
    ToolkitText{"&Choose", 70113},
    ToolkitText{"Files of type:", 70114},
    ToolkitText{"All Files (*)", 70115},
    ToolkitText{"Name", 70116},
    ToolkitText{"Size", 70117},
    ToolkitText{"Type", 70118},
    ToolkitText{"Kind", 70118},
    ToolkitText{"Date Modified", 70119},
    ToolkitText{"Computer", 70120},
    ToolkitText{"My Computer", 70120},
    ToolkitText{"%1 already exists.\nDo you want to replace it?", 70121},
    ToolkitText{"&Rename", 70122},
    ToolkitText{"&Delete", 70123},
    ToolkitText{"Delete", 70135},
    ToolkitText{"Show &hidden files", 70124},
    ToolkitText{"&New Folder", 70125},
    ToolkitText{"New Folder", 70126},
    ToolkitText{"%1\nFile not found.\nPlease verify the correct file name was given.", 70127},
    ToolkitText{"%1\nDirectory not found.\nPlease verify the correct directory name was given.", 70128},
    ToolkitText{"Are you sure you want to delete '%1'?", 70129},
    ToolkitText{"&Undo", 70130},
    ToolkitText{"&Redo", 70131},
    ToolkitText{"Cu&t", 70132},
    ToolkitText{"&Copy", 70133},
    ToolkitText{"&Paste", 70134},
    ToolkitText{"Select All", 70136},
    ToolkitText{"Folder", 70139},
    ToolkitText{"File", 70140},
    ToolkitText{"%1 File", 70141},
    ToolkitText{"Select Color", 234001},
    ToolkitText{"&Basic colors", 234002},
    ToolkitText{"&Custom colors", 234003},
    ToolkitText{"&Pick Screen Color", 234004},
    ToolkitText{"&Add to Custom Colors", 234005},
    ToolkitText{"Hu&e:", 234006},
    ToolkitText{"&Sat:", 234007},
    ToolkitText{"&Val:", 234008},
    ToolkitText{"&Red:", 234009},
    ToolkitText{"&Green:", 234010},
    ToolkitText{"Bl&ue:", 234011},
    ToolkitText{"A&lpha channel:", 234012},
    ToolkitText{"&HTML:", 234013},
    ToolkitText{"Cursor at %1, %2\nPress ESC to cancel", 234014},
};

}

CQtTexts::CQtTexts(const CTexts &texts, QObject *parent) : QTranslator(parent), m_texts(texts) { }

QString CQtTexts::translate(
    const char * /*context*/, const char *sourceText, const char * /*disambiguation*/, int /*n*/) const
{
    const auto *const found = std::ranges::find(ToolkitTexts, QByteArrayView(sourceText), &ToolkitText::source);
    return found == ToolkitTexts.end() ? QString() : m_texts.Get(found->number);
}
