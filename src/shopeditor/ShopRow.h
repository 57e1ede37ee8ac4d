// One ware of the shop: made from an item's record, and what the list shows of it.
#pragma once

#include "shopeditor/ShopBasePrice.h"
#include "store/ItemRecord.h"

#include <string>
#include <string_view>

namespace emporium {

/// A ware. A copy of an item's record, which later changes of the item do not reach: the views lie
/// within bytes that the row keeps alive. Two prices are needed: one that the list shows, by level
/// or by hand, and the base from which every level starts again.
struct ShopRow {
    SharedText bytes;
    std::string_view ShopItemLine; // the name with the Wert digit behind it
    std::string_view Weight;       // in Unzen, without a unit
    std::string_view Unit;         // the letter of the price, empty if the item has no price
    std::string_view ShopAvailability;
    BasePrice base;

    std::string Price;        // as shown: a number and the unit
    std::string WithQuantity; // as shown once a quantity was given, else empty: see ShopCell
};

enum ShopColumn { ShopTextColumn, ShopPriceColumn };

/// A ware of an item's record, which lies within the bytes. Its price is shown as it comes.
ShopRow MakeShopRow(const RecordView& record, SharedText bytes);

/// The same with bytes of its own, so that a single ware does not keep the whole of its file.
ShopRow MakeShopRow(const RecordView& record);

/// What the list shows of a ware.
std::string_view ShopCell(const ShopRow& row, int column);

/// Puts the quantity behind the name, in brackets; an earlier one goes.
void SetQuantity(ShopRow& row, std::string_view quantity);

/// What stands for the quantity behind the name, without the brackets; "1" for a ware without one.
std::string QuantityOf(const ShopRow& row);

} // namespace emporium
