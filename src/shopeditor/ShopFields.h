// The fields that describe the shop as a whole and take more than a choice: its region and its
// owner.
#pragma once

#include "base/Platform.h"
#include "shopeditor/ShopEditor.h"

namespace emporium {

/// A choice in cmbShopRegion: the list's tool tip tells the region's long name.
void ChooseShopRegion(ShopEditor& shop, const Platform& platform, int index);

/// A choice in cmbRasse: with a race a name can be drawn.
void ChooseRace(ShopEditor& shop, int index);

/// cmdGenName: draws the owner's name. If a list gives none, a box says so and the name stays.
void DrawOwnerName(ShopEditor& shop, const Platform& platform);

} // namespace emporium
