#include "shopeditor/ShopEditor.h"

#include "shopeditor/ShopPricing.h"

namespace emporium {

ShopEditor::ShopEditor()
    : cmbRasse(ChoiceList::Order::AsAdded, {"Bornland", "Elfen", "Gareth", "Mohas", "Nivesen",
                                            "Norbarden", "Thorwaler", "Tulamiden", "Zwerge"}),
      cmbShopRegion(ChoiceList::Order::AsAdded, AlphabeticalRegionCodes()),
      cmbShopPreise(ChoiceList::Order::AsAdded, PriceLevelNames()),
      cmbShopQualität(ChoiceList::Order::AsAdded,
                      {"Schlecht", "Einfach", "Solide", "Sehr gut", "Spezialist"}) {
    cmdShopAnzahl.enabled = cmdShopDelete.enabled = false;
    cmdGenName.enabled = false;
    cmbShopPreise.enabled = false;
}

} // namespace emporium
