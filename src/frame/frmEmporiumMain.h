// The main window's state: the two editors, the shop, the print and the mode.
#pragma once

#include "base/Platform.h"
#include "documents/PrintHost.h"
#include "generator/frmEmporiumGenerator.h"
#include "itemeditor/ItemEditor.h"
#include "shopeditor/ShopEditor.h"

#include <string>

namespace emporium {

enum class Mode { ItemEditor, ShopEditor };

struct frmEmporiumMain {
    FolderClaim claim;
    std::string caption;
    Mode mode = Mode::ItemEditor;
    ItemEditor items;
    ShopEditor shop;
    PrintHost print;
    frmEmporiumGenerator generator;
};

void ShowItemEditor(frmEmporiumMain& window);
void ShowShopEditor(frmEmporiumMain& window);

/// Opens the help page in the system's viewer. A failure goes unseen.
void OpenHelp(const Platform& platform);

} // namespace emporium
