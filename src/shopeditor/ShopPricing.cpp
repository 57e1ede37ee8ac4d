#include "shopeditor/ShopPricing.h"

#include "shopeditor/LevelTable.h"
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

void PickPriceLevel(ShopEditor& shop, const Platform& platform, int index) {
    ChoosePriceLevel(shop, index);
    const std::string text = UnclearPricesText(shop);
    if (index >= 0 && !text.empty())
        platform.ShowMessage(text);
}

std::string UnclearPricesText(const ShopEditor& shop) {
    constexpr int named = 5;
    int found = 0;
    std::string text;
    for (const ShopRow& row : shop.lvLaden.rows)
        if (!row.base.isClear && ++found <= named)
            text.append("\n").append(ShopCell(row, ShopTextColumn)) += ": " + row.Price;
    if (found == 0)
        return {};
    if (found > named)
        text += "\nund " + std::to_string(found - named) + " weitere";
    return std::string("Diese Waren haben einen Preis, mit dem sich nicht rechnen lässt: Er ist "
                       "keine Zahl oder zu groß. Jetzt steht bei ihnen 0 oder der größte Wert, der "
                       "möglich ist. Prüft sie, bevor ihr druckt.\n"_ansi) +
           text;
}

void ApplyPriceLevel(ShopEditor& shop) {
    const int level = shop.cmbShopPreise.Selection();
    if (level < 0)
        return;
    for (ShopRow& row : shop.lvLaden.rows)
        row.Price = LevelPriceText(row.base.ShopBasePrice, level).append(row.Unit);
    if (shop.lvLaden.sort.column == ShopPriceColumn)
        ArrangeShopList(shop);
    ++shop.lvLaden.revision;
}

} // namespace emporium
