// The shop: its wares, its descriptive fields and the controls that show them. It lives for one run
// of the program and leaves it only as a document. The operations are in ShopList, ShopPricing
// and ShopFields.
#pragma once

#include "base/Controls.h"
#include "store/CategoryFiles.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

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
    std::int16_t ShopBasePrice = 0; // whole, without unit and price level

    std::string Price;        // as shown: a number and the unit
    std::string WithQuantity; // as shown once a quantity was given, else empty: see ShopCell
};

enum ShopColumn { ShopTextColumn, ShopPriceColumn };

struct ShopListView {
    std::vector<ShopRow> rows; // in the order of the list
    ListSort sort;
    int current = -1; // -1 for none
    std::string toolTip;
    unsigned revision = 0; // grows with every change of what the rows show
};

struct ShopEditor {
    ShopEditor();

    ShopListView lvLaden;
    Button cmdShopAnzahl, cmdShopDelete;

    TextField txtName, txtShopart, txtBesitzerName;
    Button cmdGenName;
    ChoiceList cmbRasse;
    ChoiceList cmbShopRegion;
    ChoiceList cmbShopPreise;
    ChoiceList cmbShopQualität;

    int ShopCount() const { return static_cast<int>(lvLaden.rows.size()); }
};

} // namespace emporium
