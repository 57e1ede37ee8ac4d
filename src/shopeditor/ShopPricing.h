// The price level of the shop, and what it makes of the wares' prices.
#pragma once

#include "shopeditor/ShopEditor.h"

#include <cstdint>
#include <string>

namespace emporium {

/// The number of the price at a level, 0 to 4, in German notation; exact to the hundredth.
std::string LevelPriceText(std::int16_t basePrice, int level);

/// A choice in cmbShopPreise, by the user or by the generator, also of the entry that is chosen
/// already.
void ChoosePriceLevel(ShopEditor& shop, int index);

/// Prices every ware from its base price at the chosen level. Without a level nothing changes.
void ApplyPriceLevel(ShopEditor& shop);

} // namespace emporium
