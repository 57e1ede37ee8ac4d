// The main window's state: the two editors, the shop, the print and the mode, and the sequence that
// starts the program.
#pragma once

#include "base/Platform.h"
#include "base/Variablen.h"
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

/// Starts the program: what a killed run left is finished, the category files are brought up to
/// date and the category list is read. What could not be read or written is told in one box. If
/// another copy of the program uses the same data, a box asks whether to go on; false if not. A
/// data folder that is missing or can't be written is told, too, and stays as it is; so is a folder
/// for pages that can't be written.
bool StartUp(frmEmporiumMain& window, const Platform& platform);

void ShowItemEditor(frmEmporiumMain& window);
void ShowShopEditor(frmEmporiumMain& window);

/// Opens the help page in the system's viewer. A failure goes unseen.
void OpenHelp(const Platform& platform);

} // namespace emporium
