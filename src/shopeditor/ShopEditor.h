// The shop: its wares, its descriptive fields and the controls that show them. It lives for one run
// of the program and leaves it only as a document. The operations are in ShopList and ShopPricing.
#pragma once

#include "base/Controls.h"
#include "regions/AtlasEngine.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

namespace emporium {

/// A ware: what the list shows, and what it keeps beyond that. A copy of an item's record, which
/// later changes of the item do not reach.
struct ShopRow {
    std::string Text;   // the name, with a quantity once one was given
    std::string Weight; // in Unzen, without a unit
    std::string Price;  // a number and the unit

    std::int16_t ShopBasePrice = 0; // whole, without unit and price level
    std::string Unit;               // the letter of the price, empty if the item has no price
    std::string ShopItemLine;       // the name with the Wert digit behind it
    std::string ShopAvailability;
};

enum ShopColumn { ShopTextColumn, ShopPriceColumn };

struct ShopListView {
    std::deque<std::unique_ptr<ShopRow>> rows; // in the order of the list
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
