#include "shopeditor/ShopEditor.h"

#include "regions/AtlasEngine.h"
#include "shopeditor/LevelTable.h"

namespace emporium {

ShopEditor::ShopEditor()
    : cmbRasse(ChoiceList::Order::AsAdded, {"Bornland", "Elfen", "Gareth", "Mohas", "Nivesen",
                                            "Norbarden", "Thorwaler", "Tulamiden", "Zwerge"}),
      cmbShopRegion(ChoiceList::Order::AsAdded, AlphabeticalRegionCodes()),
      cmbShopPreise(ChoiceList::Order::AsAdded, PriceLevelNames()),
      cmbShopQualität(ChoiceList::Order::AsAdded, {Qualities.begin(), Qualities.end()}) {
    cmdShopAnzahl.enabled = cmdShopDelete.enabled = false;
    cmdGenName.enabled = false;
    cmbRasse.toolTip = "Volk des Besitzers";
    cmbShopPreise.enabled = false;
}

} // namespace emporium
