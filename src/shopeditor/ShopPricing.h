// The price level of the shop, and the fields that describe the shop as a whole.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// The levels in the order of the list, from "Sehr billig" to "Sehr teuer / Wucher".
std::vector<std::string_view> PriceLevelNames();

/// The number of the price at a level, 0 to 4, in German notation.
std::string LevelPriceText(std::int16_t basePrice, int level);

/// A choice in cmbShopPreise, by the user or by the generator, also of the entry that is chosen
/// already.
void ChoosePriceLevel(ShopEditor& shop, int index);

/// Prices every ware from its base price at the chosen level. Without a level nothing changes.
void ApplyPriceLevel(ShopEditor& shop);

/// A choice in cmbShopRegion: the list's tool tip tells the region's long name.
void ChooseShopRegion(ShopEditor& shop, const Platform& platform, int index);

/// A choice in cmbRasse: with a race a name can be drawn.
void ChooseRace(ShopEditor& shop, int index);

/// cmdGenName: draws the owner's name. If a list gives none, a box says so and the name stays.
void DrawOwnerName(ShopEditor& shop, const Platform& platform);

} // namespace emporium
