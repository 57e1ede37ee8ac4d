// The shop as a page for the game table: the form for export and the form for print, which differ
// in some lines and columns, and the command that exports.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

#include <string>

namespace emporium {

/// Append the page to the document, the wares in the order of the list.
void WriteShopExport(const ShopEditor& shop, std::string& document);
void WriteShopPrint(const ShopEditor& shop, std::string& document);

/// cmdShopExport: asks for a file, writes the shop into it and offers to show it. If the file can't
/// be written, a box says so, and a file that was there before stays as it was.
void ExportShop(const ShopEditor& shop, const Platform& platform);

} // namespace emporium
