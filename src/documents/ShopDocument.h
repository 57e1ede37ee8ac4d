// The shop as a page for the game table: the form for export and the form for print, which differ
// in some lines and columns.
#pragma once

#include "shopeditor/ShopEditor.h"

#include <string>

namespace emporium {

/// Append the page to the document, the wares in the order of the list.
void WriteShopExport(const ShopEditor& shop, std::string& document);
void WriteShopPrint(const ShopEditor& shop, std::string& document);

} // namespace emporium
