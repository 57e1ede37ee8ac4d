#include "shopeditor/ShopList.h"
#include "shopeditor/ShopPricing.h"
#include "shopeditor/ShopRecovery.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"
#include "text/GermanNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace emporium::test {
namespace {

using Texts = std::vector<std::string>;

class ShopList : public testing::Test {
protected:
    void Add(std::string_view nameLine, std::string_view price, std::string_view regions = "") {
        AddShopRow(shop, MakeShopRow({nameLine, "3", price, "Text", regions}));
    }

    // Name and price of each row, in the order of the list, which has to tell that they changed.
    Texts Rows() {
        Texts rows;
        for (const auto& row : shop.lvLaden.rows)
            rows.push_back(std::string(ShopCell(row, ShopTextColumn)) + " " + row.Price);
        EXPECT_TRUE(rows == seen || shop.lvLaden.revision > revision);
        revision = shop.lvLaden.revision;
        return seen = rows;
    }

    std::string Current() {
        const int row = shop.lvLaden.current;
        return row < 0 ? "(none)" : Rows()[static_cast<std::size_t>(row)];
    }

    void SetPrice(std::string_view answer) {
        script.ExpectText("Bitte gebt den neuen Preis ein.", answer);
        SetShopRowPrice(shop, script.platform);
        EXPECT_EQ(shop.lvLaden.reveal.row, shop.lvLaden.current);
    }

    ShopEditor shop;
    ScriptedPlatform script;
    Texts seen;
    unsigned revision = 0;
};

TEST_F(ShopList, ACommandWithoutAChosenRowSaysWhatToChooseAndAnEmptyShopNothing) {
    ItemEditor items;
    RemoveShopRow(shop, script.platform);
    AddItemToShop(shop, items, script.platform);
    EXPECT_FALSE(shop.cmdShopDelete.enabled || shop.cmdShopAnzahl.enabled);
    items.Items.resize(1);
    items.Items[0].record = {"Seil1", "3", "5H", "", ""};
    script.ExpectMessage("Bitte wählt zuerst einen Gegenstand aus."_ansi);
    AddItemToShop(shop, items, script.platform);
    items.CurrentItemRow = 0;
    AddItemToShop(shop, items, script.platform);
    EXPECT_EQ(Rows(), (Texts{"Seil 5H"}));
    EXPECT_TRUE(shop.cmdShopDelete.enabled && shop.cmdShopAnzahl.enabled &&
                shop.cmbShopPreise.enabled);
    for (int command = 0; command < 3; ++command)
        script.ExpectMessage("Bitte wählt zuerst eine Ware"_ansi);
    RemoveShopRow(shop, script.platform);
    SetShopRowPrice(shop, script.platform);
    SetShopRowQuantity(shop, script.platform);
    ChooseShopRow(shop, 0);
    RemoveShopRow(shop, script.platform);
    EXPECT_EQ(LastRemovedWare(shop), "Seil");
    EXPECT_TRUE(shop.lvLaden.toolTip.empty() && !shop.cmdShopDelete.enabled);
    RecoverShopRow(shop, script.platform);
    EXPECT_TRUE(shop.cmdShopDelete.enabled && LastRemovedWare(shop).empty());
    RecoverShopRow(shop, script.platform);
    EXPECT_EQ(Rows(), (Texts{"Seil 5H"}));
    ChooseShopRow(shop, 0);
    EXPECT_EQ(shop.lvLaden.toolTip, "Seil");
    ClearShop(shop);
    EXPECT_TRUE(shop.lvLaden.current == -1 && !shop.cmdShopDelete.enabled);
    EXPECT_EQ(shop.lvLaden.toolTip + shop.cmbShopPreise.Text(), "");
    while (!ShopIsFull(shop))
        shop.lvLaden.rows.push_back(MakeShopRow(items.Record(0)));
    shop.removed.resize(1);
    for (int command = 0; command < 2; ++command)
        script.ExpectMessage("Der Laden ist voll");
    AddItemToShop(shop, items, script.platform);
    RecoverShopRow(shop, script.platform);
    EXPECT_TRUE(shop.ShopCount() == MaxRows && !shop.removed.empty());
}

TEST_F(ShopList, WaresWhosePriceCannotBeReckonedAreNamedWhenALevelIsPicked) {
    Add("Seil1", "5H");
    PickPriceLevel(shop, script.platform, 3);
    for (const char* name : {"A1", "B1", "C1", "D1", "E1", "F1", "G1"})
        Add(name, "vielD");
    script.ExpectMessage("Diese Waren haben einen Preis");
    std::string told;
    auto show = script.platform.ShowMessage;
    script.platform.ShowMessage = [&](std::string_view text) { show(told = text); };
    PickPriceLevel(shop, script.platform, 0);
    EXPECT_TRUE(told.ends_with("\nE: 0D\nund 2 weitere")) << told;
    PickPriceLevel(shop, script.platform, -1);
}

TEST_F(ShopList, RowsStandSortedByTheTextOfOneColumn) {
    Add("Zelt1", "9S");
    Add("Ähre1"_ansi, "10S");
    Add("Schwert 23", "100D");
    EXPECT_EQ(Rows(), (Texts{std::string("Ähre 10S"_ansi), "Schwert 2 100D", "Zelt 9S"}));
    ChooseShopRow(shop, 2);
    SortShopList(shop, ShopTextColumn);
    EXPECT_EQ(Rows().front(), "Zelt 9S");
    SortShopList(shop, ShopPriceColumn);
    Add("Topf1", "10S");
    Add("Pfanne1", "1S");
    EXPECT_EQ(shop.lvLaden.reveal.row, 3);
    EXPECT_EQ(Rows(), (Texts{"Schwert 2 100D", std::string("Ähre 10S"_ansi), "Topf 10S",
                             "Pfanne 1S", "Zelt 9S"}));
    EXPECT_EQ(Current(), "Zelt 9S");
    ChoosePriceLevel(shop, 3);
    EXPECT_EQ(Rows(), (Texts{"Pfanne 1,2S", "Zelt 10,8S", "Schwert 2 120D",
                             std::string("Ähre 12S"_ansi), "Topf 12S"}));
    EXPECT_EQ(Current(), "Zelt 10,8S");
    SetPrice("2");
    EXPECT_EQ(Current(), "Zelt 2S");
    EXPECT_EQ(Rows()[4], "Zelt 2S");
    ChooseShopRow(shop, 3);
    for (const auto next : {"Zelt 2S"_ansi, "Ähre 12S"_ansi, "Schwert 2 120D"_ansi}) {
        RemoveShopRow(shop, script.platform);
        EXPECT_EQ(Current(), next);
        EXPECT_EQ(shop.lvLaden.reveal.row, shop.lvLaden.current);
    }
}

TEST_F(ShopList, ChangesByHandReachTheCurrentOneOfEqualRowsOnly) {
    for (const char* regions : {"BO|", "GA|", "PU|"})
        Add("Schwert 23", "7D", regions);
    ChooseShopRow(shop, 1);
    SetPrice("7");
    EXPECT_EQ(shop.lvLaden.current, 1) << "a row whose sorted text stays has to stay as well";
    for (const auto& [answer, text] : std::vector<std::pair<const char*, const char*>>{
             {"3", "(x3)"}, {"12 oder mehr", "(x12 oder mehr)"}, {"", "(x12 oder mehr)"}}) {
        script.ExpectText("Bitte gebt eine Zahl an, wie oft der Gegenstand im Shop vorhanden sein "
                          "soll.",
                          answer);
        SetShopRowQuantity(shop, script.platform);
        EXPECT_EQ(Current(), std::string("Schwert 2 ") + text + " 7D");
        EXPECT_EQ(shop.lvLaden.toolTip + " 7D", Current());
        EXPECT_EQ("(x" + QuantityOf(shop.lvLaden.rows[2]) + ")", text);
    }
    SetPrice("");
    EXPECT_EQ(Current(), "Schwert 2 (x12 oder mehr) 7D");
    SetPrice("viel ");
    EXPECT_EQ(Rows(), (Texts{"Schwert 2 7D", "Schwert 2 7D", "Schwert 2 (x12 oder mehr) viel D"}));
    EXPECT_EQ(shop.lvLaden.rows[2].ShopAvailability, "GA|");
    ChoosePriceLevel(shop, 3);
    EXPECT_EQ(Current(), "Schwert 2 (x12 oder mehr) 8,4D");
}

TEST(LevelPrice, EveryBasePriceAtEveryLevelIsExactAndHasNoDigitTooMany) {
    using Limits = std::numeric_limits<std::int16_t>;
    for (int base = Limits::min(); base <= Limits::max(); ++base)
        for (int level = 0; const int percent : {70, 85, 100, 120, 150}) {
            const std::string text = LevelPriceText(static_cast<std::int16_t>(base), level++);
            ASSERT_EQ(ReadGermanNumber(text), base * percent / 100.0) << text;
            const bool isFraction = text.find(',') != text.npos;
            ASSERT_TRUE(text[0] != '+' && (!isFraction || text.back() != '0')) << text;
        }
    for (const auto& [base, text] : {std::pair(7, "5,95"), {-7, "-5,95"}, {0, "0"}, {250, "212,5"}})
        EXPECT_EQ(LevelPriceText(static_cast<std::int16_t>(base), 1), text);
}

TEST(BasePrice, TheNumberOfAPriceIsRoundedAndHeldWithinItsLimits) {
    const std::vector<std::pair<std::string_view, int>> cases = {
        {"12D", 12}, {"2,5S", 2},       {"3,5S", 4},         {"0,5H", 0},         {"1.250P", 1250},
        {"-3D", -3}, {"40000D", 32767}, {"-40000D", -32768}, {"32767,4D", 32767}, {"D", 0},
        {"", 0},     {"vielD", 0},      {"12", 12},          {"1,2,3D", 0}};
    for (const auto& [price, base] : cases) {
        const ShopRow row = MakeShopRow({"Seil1", "", price, "", ""});
        EXPECT_EQ(row.base.ShopBasePrice, base) << price;
        EXPECT_EQ(row.Price, price);
        EXPECT_TRUE(row.Unit.find_first_of("0123456789") == row.Unit.npos) << price;
    }
}

} // namespace
} // namespace emporium::test
