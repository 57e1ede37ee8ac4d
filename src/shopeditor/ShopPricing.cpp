#include "shopeditor/ShopPricing.h"

#include "shopeditor/ShopLevels.h"
#include "shopeditor/ShopList.h"

#include <cstdlib>

namespace emporium {

std::string LevelPriceText(std::int16_t basePrice, int level) {
    const int hundredths = basePrice * PriceLevels[static_cast<std::size_t>(level)].percent;
    const int size = std::abs(hundredths);
    std::string text = hundredths < 0 ? "-" : "";
    text += std::to_string(size / 100);
    if (const int cents = size % 100; cents != 0) {
        text += ',';
        text += static_cast<char>('0' + cents / 10);
        if (cents % 10 != 0)
            text += static_cast<char>('0' + cents % 10);
    }
    return text;
}

void ChoosePriceLevel(ShopEditor& shop, int index) {
    shop.cmbShopPreise.Select(index);
    ApplyPriceLevel(shop);
}

void ApplyPriceLevel(ShopEditor& shop) {
    const int level = shop.cmbShopPreise.Selection();
    if (level < 0)
        return;
    for (ShopRow& row : shop.lvLaden.rows)
        row.Price = LevelPriceText(row.ShopBasePrice, level).append(row.Unit);
    if (shop.lvLaden.sort.column == ShopPriceColumn)
        ArrangeShopList(shop);
    ++shop.lvLaden.revision;
}

} // namespace emporium
