#include "shopeditor/ShopList.h"
#include "base/Ansi.h"
#include "shopeditor/ShopPricing.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

using Texts = std::vector<std::string>;

class ShopList : public testing::Test {
protected:
    void Add(std::string_view nameLine, std::string_view price, std::string_view regions = "") {
        AddShopRow(shop, MakeShopRow(nameLine, "3", price, regions));
        UpdateShopButtons(shop);
    }

    // Name and price of each row, in the order of the list.
    Texts Rows() const {
        Texts rows;
        for (const auto& row : shop.lvLaden.rows)
            rows.push_back(row->Text + " " + row->Price);
        return rows;
    }

    std::string Current() const {
        const int row = shop.lvLaden.current;
        return row < 0 ? "(none)" : Rows()[static_cast<std::size_t>(row)];
    }

    void SetPrice(std::string_view answer) {
        script.ExpectText("Bitte gebt den neuen Preis ein.", answer);
        SetShopRowPrice(shop, script.platform);
    }

    bool ButtonsAreEnabled() const {
        EXPECT_EQ(shop.cmdShopAnzahl.enabled, shop.cmdShopDelete.enabled);
        EXPECT_EQ(shop.cmbShopPreise.enabled, shop.cmdShopDelete.enabled);
        return shop.cmdShopDelete.enabled;
    }

    ShopEditor shop;
    ScriptedPlatform script;
};

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
    EXPECT_EQ(Rows(), (Texts{"Schwert 2 100D", std::string("Ähre 10S"_ansi), "Topf 10S",
                             "Pfanne 1S", "Zelt 9S"}));
    EXPECT_EQ(Current(), "Zelt 9S");
    SetPrice("10");
    SortShopList(shop, ShopPriceColumn);
    EXPECT_EQ(Rows().back(), "Schwert 2 100D");
    EXPECT_EQ(Current(), "Zelt 10S");
    SetPrice("2");
    EXPECT_EQ(Rows().front(), "Zelt 2S");
    EXPECT_EQ(Current(), "Zelt 2S");
}

TEST_F(ShopList, ChangesByHandReachTheCurrentOneOfEqualRowsOnly) {
    for (const char* regions : {"BO|", "GA|", "PU|"})
        Add("Schwert 23", "7D", regions);
    ChooseShopRow(shop, 1);
    for (const auto& [answer, text] : std::vector<std::pair<const char*, const char*>>{
             {"3", "(x3)"}, {"12 oder mehr", "(x12 oder mehr)"}, {"", "(x12 oder mehr)"}}) {
        script.ExpectText("Bitte gebt eine Zahl an, wie oft der Gegenstand im Shop vorhanden sein "
                          "soll.",
                          answer);
        SetShopRowQuantity(shop, script.platform);
        EXPECT_EQ(Current(), std::string("Schwert 2 ") + text + " 7D");
    }
    SetPrice("");
    EXPECT_EQ(Current(), "Schwert 2 (x12 oder mehr) 7D");
    SetPrice("viel ");
    EXPECT_EQ(Rows(), (Texts{"Schwert 2 7D", "Schwert 2 7D", "Schwert 2 (x12 oder mehr) viel D"}));
    EXPECT_EQ(shop.lvLaden.rows[2]->ShopAvailability, "GA|");
    ChoosePriceLevel(shop, 3);
    EXPECT_EQ(Current(), "Schwert 2 (x12 oder mehr) 8,4D");
}

TEST_F(ShopList, AfterARemovalTheRowInItsPlaceIsCurrent) {
    for (const char* name : {"A1", "B1", "C1"})
        Add(name, "1S");
    ChooseShopRow(shop, 1);
    EXPECT_EQ(shop.lvLaden.toolTip, "B");
    for (const char* next : {"C 1S", "A 1S", "(none)"}) {
        EXPECT_TRUE(ButtonsAreEnabled());
        RemoveShopRow(shop);
        EXPECT_EQ(Current(), next);
    }
    EXPECT_FALSE(ButtonsAreEnabled());
}

TEST_F(ShopList, WithoutACurrentRowNothingHappens) {
    Add("A1", "1S");
    RemoveShopRow(shop);
    SetShopRowQuantity(shop, script.platform);
    SetShopRowPrice(shop, script.platform);
    EXPECT_EQ(Rows(), Texts{"A 1S"});
    // The row may also go while its box is open; clearing takes the price level with it.
    script.platform.AskText = [this](std::string_view) {
        ClearShop(shop);
        return std::string("5");
    };
    for (const auto operation : {SetShopRowQuantity, SetShopRowPrice}) {
        Add("A1", "1S");
        ChooseShopRow(shop, 0);
        ChoosePriceLevel(shop, 1);
        operation(shop, script.platform);
        EXPECT_EQ(shop.ShopCount(), 0);
        EXPECT_EQ(shop.cmbShopPreise.Selection(), -1);
        EXPECT_FALSE(ButtonsAreEnabled());
    }
}

TEST_F(ShopList, AnAddedItemIsACopyAtItsStoredPriceAndAFullShopRefusesIt) {
    ItemEditor items;
    AddItemToShop(shop, items, script.platform);
    EXPECT_EQ(shop.ShopCount(), 0);
    items.Items = {{"Seil2", "10", "12,5D", "Text", "GA|"}};
    items.CurrentItemRow = 0;
    AddItemToShop(shop, items, script.platform);
    EXPECT_TRUE(ButtonsAreEnabled());
    ChoosePriceLevel(shop, 4);
    AddItemToShop(shop, items, script.platform);
    items.Items[0] = {"Topf1", "", "", "", ""};
    AddItemToShop(shop, items, script.platform);
    EXPECT_EQ(Rows(), (Texts{"Seil 18D", "Seil 12,5D", "Topf "}));
    const ShopRow& row = *shop.lvLaden.rows[1];
    EXPECT_EQ(row.Weight + row.ShopItemLine + row.ShopAvailability, "10Seil2GA|");
    ChoosePriceLevel(shop, 2);
    EXPECT_EQ(Rows(), (Texts{"Seil 12D", "Seil 12D", "Topf 0"}));
    while (shop.ShopCount() + 1 < MaxRows)
        shop.lvLaden.rows.push_back(MakeShopRow("Topf1", "", "1H", ""));
    AddItemToShop(shop, items, script.platform);
    script.ExpectMessage("Der Shop ist voll: Er fasst höchstens 32767 Waren."_ansi);
    AddItemToShop(shop, items, script.platform);
    EXPECT_EQ(shop.ShopCount(), MaxRows);
}

} // namespace
} // namespace emporium::test
