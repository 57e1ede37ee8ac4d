#include "shopeditor/ShopRecovery.h"

#include "shopeditor/ShopList.h"

namespace emporium {

std::string_view LastRemovedWare(const ShopEditor& shop) {
    return shop.removed.empty() ? std::string_view()
                                : ShopCell(shop.removed.back(), ShopTextColumn);
}

void RecoverShopRow(ShopEditor& shop, const Platform& platform) {
    if (shop.removed.empty())
        return;
    if (ShopIsFull(shop)) {
        platform.ShowMessage(ShopFullText);
        return;
    }
    AddShopRow(shop, std::move(shop.removed.back()));
    shop.removed.pop_back();
    UpdateShopButtons(shop);
}

} // namespace emporium
