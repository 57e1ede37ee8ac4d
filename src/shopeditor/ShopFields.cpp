#include "shopeditor/ShopFields.h"

#include "names/GenNameSub.h"
#include "regions/AtlasEngine.h"

namespace emporium {

void ChooseShopRegion(ShopEditor& shop, const Platform& platform, int index) {
    shop.cmbShopRegion.Select(index);
    shop.cmbShopRegion.toolTip = RegionDescription(platform.disk, shop.cmbShopRegion.Text());
}

void ChooseRace(ShopEditor& shop, int index) {
    shop.cmbRasse.Select(index);
    shop.cmdGenName.enabled = !shop.cmbRasse.Text().empty();
}

void DrawOwnerName(ShopEditor& shop, const Platform& platform) {
    NameLists lists(platform.disk, platform.RollDice);
    std::string sex;
    std::string name = GenName(lists, shop.cmbRasse.Text(), sex);
    if (lists.Failure())
        platform.ShowMessage(
            FailureText("Es konnte kein Name gezogen werden, weil eine Namensliste fehlt oder "
                        "nicht zu lesen ist.",
                        *lists.Failure()));
    else
        shop.txtBesitzerName.text = std::move(name);
}

} // namespace emporium
