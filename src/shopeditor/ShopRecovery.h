// The wares that were taken out of the shop, and the way back for them. A new shop forgets them.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

#include <string_view>

namespace emporium {

/// What the list showed of the ware removed last; empty if there is none. Lives as long as that
/// ware is removed.
std::string_view LastRemovedWare(const ShopEditor& shop);

/// Brings the ware removed last back as it was, with its quantity and its price; the one removed
/// before it is the last one then. A box says if the shop is full. Nothing happens without one.
void RecoverShopRow(ShopEditor& shop, const Platform& platform);

} // namespace emporium
