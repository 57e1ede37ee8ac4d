#include "shopeditor/ShopPricing.h"

#include "names/GenNameSub.h"
#include "shopeditor/ShopList.h"
#include "text/GermanNumber.h"

#include <algorithm>
#include <array>

namespace emporium {

namespace {

struct PriceLevel {
    std::string_view name;
    double factor;
};

constexpr std::array<PriceLevel, 5> PriceLevels = {{{"Sehr billig", 0.7},
                                                    {"Billig", 0.85},
                                                    {"Durchschnittlich", 1.0},
                                                    {"Teuer", 1.2},
                                                    {"Sehr teuer / Wucher", 1.5}}};

} // namespace

std::vector<std::string_view> PriceLevelNames() {
    std::vector<std::string_view> names(PriceLevels.size());
    std::transform(PriceLevels.begin(), PriceLevels.end(), names.begin(),
                   [](const PriceLevel& level) { return level.name; });
    return names;
}

std::string LevelPriceText(std::int16_t basePrice, int level) {
    return GermanNumberText(basePrice * PriceLevels[static_cast<std::size_t>(level)].factor);
}

void ChoosePriceLevel(ShopEditor& shop, int index) {
    shop.cmbShopPreise.Select(index);
    ApplyPriceLevel(shop);
}

void ApplyPriceLevel(ShopEditor& shop) {
    const int level = shop.cmbShopPreise.Selection();
    if (level < 0)
        return;
    for (const auto& row : shop.lvLaden.rows)
        row->Price = LevelPriceText(row->ShopBasePrice, level) + row->Unit;
    if (shop.lvLaden.sort.column == ShopPriceColumn)
        ArrangeShopList(shop);
    ++shop.lvLaden.revision;
}

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
