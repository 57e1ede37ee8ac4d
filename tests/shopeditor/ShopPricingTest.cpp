#include "shopeditor/ShopPricing.h"
#include "base/Ansi.h"
#include "shopeditor/ShopList.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace emporium::test {
namespace {

// The price in whole hundredths, written as decimal text.
std::string ExactText(int basePrice, int percent) {
    const int hundredths = basePrice * percent;
    const int size = hundredths < 0 ? -hundredths : hundredths;
    std::string text = (hundredths < 0 ? "-" : "") + std::to_string(size / 100);
    if (size % 100 != 0)
        text += "," + std::to_string(size / 10 % 10);
    if (size % 10 != 0)
        text += std::to_string(size % 10);
    return text;
}

TEST(LevelPrice, EveryBasePriceAtEveryLevelIsExact) {
    using Limits = std::numeric_limits<std::int16_t>;
    EXPECT_EQ(ExactText(-7, 85) + " " + ExactText(250, 85), "-5,95 212,5");
    for (int base = Limits::min(); base <= Limits::max(); ++base)
        for (int level = 0; const int percent : {70, 85, 100, 120, 150})
            ASSERT_EQ(LevelPriceText(static_cast<std::int16_t>(base), level++),
                      ExactText(base, percent))
                << base << " at " << percent << " percent";
}

TEST(BasePrice, TheNumberOfAPriceIsRoundedAndHeldWithinItsLimits) {
    const std::vector<std::pair<std::string_view, int>> cases = {
        {"12D", 12}, {"2,5S", 2},       {"3,5S", 4},         {"0,5H", 0},         {"1.250P", 1250},
        {"-3D", -3}, {"40000D", 32767}, {"-40000D", -32768}, {"32767,4D", 32767}, {"D", 0},
        {"", 0},     {"vielD", 0},      {"12", 1},           {"1,2,3D", 0}};
    for (const auto& [price, base] : cases) {
        const auto row = MakeShopRow("Seil1", "", price, "");
        EXPECT_EQ(row->ShopBasePrice, base) << price;
        EXPECT_EQ(row->Price, price);
    }
}

std::string Prices(const ShopEditor& shop) {
    std::string prices;
    for (const auto& row : shop.lvLaden.rows)
        prices += row->Price + " ";
    return prices;
}

TEST(PriceLevel, EveryChoiceStartsFromTheBasePriceAndKeepsTheUnit) {
    ShopEditor shop;
    for (const char* price : {"12D", "7S", "250H", "0,5P"})
        AddShopRow(shop, MakeShopRow("Seil1", "", price, ""));
    const std::vector<std::pair<int, const char*>> cases = {{3, "14,4D 8,4S 300H 0P "},
                                                            {0, "8,4D 4,9S 175H 0P "},
                                                            {1, "10,2D 5,95S 212,5H 0P "},
                                                            {4, "18D 10,5S 375H 0P "},
                                                            {2, "12D 7S 250H 0P "}};
    for (const auto& [level, prices] : cases) {
        ChoosePriceLevel(shop, level);
        EXPECT_EQ(Prices(shop), prices);
    }
    // What came later or was set by hand waits for the next choice, also of the same level.
    AddShopRow(shop, MakeShopRow("Seil1", "", "2,5S", ""));
    shop.lvLaden.rows[0]->Price = "1D";
    EXPECT_EQ(Prices(shop), "1D 7S 250H 0P 2,5S ");
    ChoosePriceLevel(shop, 2);
    EXPECT_EQ(Prices(shop), "12D 7S 250H 0P 2S ");
    ChoosePriceLevel(shop, -1);
    EXPECT_EQ(Prices(shop), "12D 7S 250H 0P 2S ");
}

TEST(PriceLevel, AListSortedByPriceIsSortedAnewAndTheCurrentWareStays) {
    ShopEditor shop;
    for (const char* price : {"10S", "15S", "9S"})
        AddShopRow(shop, MakeShopRow("A1", "", price, ""));
    SortShopList(shop, ShopPriceColumn);
    EXPECT_EQ(Prices(shop), "9S 15S 10S ");
    ChooseShopRow(shop, 0);
    ChoosePriceLevel(shop, 3);
    EXPECT_EQ(Prices(shop), "18S 12S 10,8S ");
    EXPECT_EQ(shop.lvLaden.current, 2);
}

} // namespace
} // namespace emporium::test
