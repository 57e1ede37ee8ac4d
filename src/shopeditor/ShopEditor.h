// The shop: its wares, its descriptive fields and the controls that show them. It lives for one run
// of the program and leaves it only as a document. The operations are in ShopList, ShopPricing,
// ShopFields and ShopRecovery.
#pragma once

#include "base/Controls.h"
#include "shopeditor/ShopRow.h"

#include <vector>

namespace emporium {

struct ShopListView {
    std::vector<ShopRow> rows; // in the order of the list
    ListSort sort;
    int current = -1; // -1 for none
    std::string toolTip;
    unsigned revision = 0; // grows with every change of what the rows show
    ListReveal reveal;
};

struct ShopEditor {
    ShopEditor();

    ShopListView lvLaden;
    std::vector<ShopRow> removed; // from this shop, the last one last
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
