// The command that exports the shop as an HTML file.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

namespace emporium {

/// cmdShopExport: asks for a file, writes the shop into it and offers to show it. If the file can't
/// be written, a box says so, and a file that was there before stays as it was.
void ExportShop(const ShopEditor& shop, const Platform& platform);

} // namespace emporium
