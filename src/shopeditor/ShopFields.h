// What the user does to the fields that describe the shop as a whole; the price level, which
// changes the wares, is ShopPricing's.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

namespace emporium {

/// A choice in cmbShopRegion: the list's tool tip tells the region's long name.
void ChooseShopRegion(ShopEditor& shop, const Platform& platform, int index);

/// The user types into one of the shop's text fields.
void EditShopText(TextField& field, std::string text);

/// A choice in cmbShopQualität.
void ChooseShopQuality(ShopEditor& shop, int index);

/// A choice in cmbRasse: with a race a name can be drawn.
void ChooseRace(ShopEditor& shop, int index);

/// cmdGenName: draws the owner's name. If a list gives none, a box says so and the name stays.
void DrawOwnerName(ShopEditor& shop, const Platform& platform);

} // namespace emporium
