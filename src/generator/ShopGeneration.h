// The run behind the generator's button: every record of every category that the shop type names
// gets its own throw of the dice, and a second one if the region counts.
#pragma once

#include "base/Platform.h"
#include "generator/frmEmporiumGenerator.h"
#include "shopeditor/ShopEditor.h"
#include "store/ItemRecord.h"

#include <string_view>

namespace emporium {

/// What decides whether a record joins the shop.
struct ShopWishes {
    int quality = 0; // 1 to 5
    bool regionCounts = false;
    std::string_view region;
};

/// The record test: throws the dice for one record. A record whose name line does not end in the
/// digit 1 to 5 never passes, nor does one without a region if the region counts.
bool DrawRecord(const RecordView& record, const ShopWishes& wishes, const Die& RollDice);

/// Fills the emptied shop from the dialog's choices, of which type, prices and quality must have
/// been made, and the region if it counts (see UpdateStartButton). Hands the choices over to the
/// shop's fields and closes the dialog. Categories without a file are passed over; what can't be
/// read, and a shop that is full, is told in one box, unclear prices in another.
void GenerateShop(frmEmporiumGenerator& dialog, ShopEditor& shop, const Platform& platform);

} // namespace emporium
