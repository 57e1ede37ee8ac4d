// The wares of the shop: adding, removing, giving a quantity or a price by hand, and the order of
// the list, which is also the order in the documents. "The current row" is the one that the user
// has picked; without one the row operations say in a box that one is to be picked.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"
#include "shopeditor/ShopEditor.h"

#include <string_view>

namespace emporium {

/// Adds a ware at its sorted place. The shop must have room, see ShopIsFull.
void AddShopRow(ShopEditor& shop, ShopRow row);

/// True if the shop holds as many wares as it can.
bool ShopIsFull(const ShopEditor& shop);
inline constexpr std::string_view ShopFullText =
    "Der Laden ist voll: Er fasst höchstens 32767 Waren."_ansi;

/// cmdItemHin: adds the chosen item, or says in a box that the shop is full.
void AddItemToShop(ShopEditor& shop, const ItemEditor& items, const Platform& platform);

/// Removes the current row. The one that takes its place is current then, or the last one; the
/// removed one can be recovered, see ShopRecovery.
void RemoveShopRow(ShopEditor& shop, const Platform& platform);

/// Asks for a number and writes it behind the ware's name, in place of an earlier one.
void SetShopRowQuantity(ShopEditor& shop, const Platform& platform);

/// Asks for a price, which takes the unit of the old one and holds until a level is chosen.
void SetShopRowPrice(ShopEditor& shop, const Platform& platform);

/// The user picks a row.
void ChooseShopRow(ShopEditor& shop, int row);

/// Removes all rows and the choice of a price level.
void ClearShop(ShopEditor& shop);

/// Ties buttons to the shop's having wares.
void UpdateShopButtons(ShopEditor& shop);

/// A click on a column's header.
void SortShopList(ShopEditor& shop, int column);

/// Brings all rows into the order of the list; the current ware stays current.
void ArrangeShopList(ShopEditor& shop);

} // namespace emporium
