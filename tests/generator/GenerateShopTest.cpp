#include "generator/ShopGeneration.h"
#include "shopeditor/ShopList.h"
#include "support/MemoryDisk.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace emporium::test {
namespace {

// The lowest throw of six that passes, by Wert and quality; 7 is never.
constexpr std::array<std::array<int, 5>, 5> LowestPass = {
    {{3, 2, 1, 1, 1}, {4, 3, 2, 1, 1}, {5, 4, 3, 2, 1}, {6, 5, 4, 3, 2}, {7, 7, 6, 5, 4}}};

ItemRecord Record(std::string nameLine, std::string_view regions = "") {
    return {std::move(nameLine), "1", "1D", "Text", std::string(regions)};
}

// Draws with dice that show these faces, each of which has to be thrown.
bool DrawWith(std::initializer_list<int> faces, const ItemRecord& record,
              const ShopWishes& wishes) {
    ScriptedPlatform script;
    script.Throw(faces);
    const bool passes = DrawRecord(ViewOf(record), wishes, script.platform.RollDice);
    std::vector<int> sides = {6, 20};
    sides.resize(faces.size());
    EXPECT_EQ(script.sides, sides);
    return passes;
}

TEST(DrawRecord, EveryWertPassesAtEveryQualityFromItsThresholdOn) {
    for (int wert = 1; wert <= 5; ++wert)
        for (int quality = 1; quality <= 5; ++quality) {
            const int lowest = LowestPass[static_cast<std::size_t>(wert - 1)]
                                         [static_cast<std::size_t>(quality - 1)];
            const ItemRecord record = Record("Seil" + std::to_string(wert));
            const ShopWishes wishes{quality, false, "XX"};
            SCOPED_TRACE(record[NameField] + " at " + std::to_string(quality));
            for (int face = 1; face <= 6; ++face)
                EXPECT_EQ(DrawWith({face}, record, wishes), face >= lowest) << face;
        }
}

TEST(DrawRecord, TheSecondThrowGrowsHarderWithTheDistance) {
    const struct {
        std::string_view availability, shop;
        int highestPass; // of twenty; 0 is never
    } cases[] = {{"GA|PU|", "GA", 19},    {"GA|PU|", "ZW", 16},    {"GA|PU|", "MO", 13},
                 {"FI|MA|PU|", "ZW", 16}, {"GA", "ZW", 16}, // and what is not of the right form
                 {"MO|GA", "ZW", 16},     {"MO|XX|GA|", "ZW", 19}, {"in aller Welt", "ZW", 19},
                 {"||||||", "ZW", 19},    {"|", "ZW", 0},          {"G", "ZW", 0},
                 {"MO|WA|G", "ZW", 13}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.availability).append(" in ").append(c.shop));
        const ItemRecord record = Record("Seil4", c.availability);
        const ShopWishes wishes{3, true, c.shop};
        for (int face = 1; face <= 20; ++face)
            EXPECT_EQ(DrawWith({6, face}, record, wishes), face <= c.highestPass) << face;
    }
}

TEST(DrawRecord, NoThrowIsMadeThatDecidesNothing) {
    for (const char* nameLine : {"", "Seil", "Seil0", "Seil6", "Seil1 ", "3Seil"})
        EXPECT_FALSE(DrawWith({}, Record(nameLine, "GA|"), {5, true, "GA"})) << nameLine;
    EXPECT_FALSE(DrawWith({2}, Record("Seil1", "GA|"), {1, true, "GA"}));
    EXPECT_FALSE(DrawWith({6}, Record("Seil1"), {5, true, "GA"}));
    EXPECT_TRUE(DrawWith({1}, Record("1"), {5, false, "GA"}));
}

std::string Item(std::string_view nameLine, std::string_view price = "10S",
                 std::string_view regions = "GA|") {
    return Lines({nameLine, "5", price, "Text", regions});
}

// A dialog whose only type is "Krämer", ready to start at quality 5, where every ware of Wert 1 to
// 3 passes the first throw.
class GenerateShops : public testing::Test {
protected:
    GenerateShops() {
        script.platform.disk.files = program.Files();
        script.platform.ShowGeneratorDialog = [this] { EXPECT_TRUE(dialog.open); };
        Configure({"[Krämer]"_ansi, "WareCount=1", "Ware1=Kleidung"});
        program.Write("Emporium/Kleidung.dat", Item("Hemd1") + Item("Gürtel1"_ansi));
        program.Write("Atlas/Regionen.dat", Lines({"[ZW]", "Desc=Zinnen"}));
        dialog.cmbShopBeruf.Add("Krämer"_ansi);
        ChooseShopType(dialog, 0);
        ChooseGeneratorPrices(dialog, 3);
        ChooseGeneratorQuality(dialog, 4);
    }

    void Configure(std::initializer_list<std::string_view> lines) {
        program.Write("Emporium/ShopgeneratorConfig.dat", Lines(lines));
    }

    void Run() { GenerateShop(dialog, shop, script.platform); }

    // Runs with dice that always show the highest face but one.
    std::string Wares() {
        ClearShop(shop);
        script.platform.RollDice = [](std::int32_t n) { return n - 1; };
        Run();
        std::string wares;
        for (const auto& row : shop.lvLaden.rows)
            wares.append(ShopCell(row, ShopTextColumn)) += " ";
        return wares;
    }

    MemoryDisk program;
    ScriptedPlatform script{program.folders};
    ShopEditor shop;
    frmEmporiumGenerator dialog;
};

TEST_F(GenerateShops, EachRecordHasItsOwnThrowsInFileOrder) {
    Configure({"[Krämer]"_ansi, "WareCount=2", "Ware1=Kleidung", "Ware2=Waffen"});
    program.Write("Emporium/Waffen.dat", Item("Dolch5", "7D", "PU|") + Item("Keule9") +
                                             Item("Axt1", "12D", "") + Item("Speer4", "250H"));
    TickShopRegion(dialog, true);
    ChooseGeneratorRegion(dialog, script.platform, 18);
    script.Throw({1, 17, 6, 16, 4, 16, 1, 2, 1});
    Run();
    EXPECT_EQ(script.sides, (std::vector<int>{6, 20, 6, 20, 6, 20, 6, 6, 20}));
    EXPECT_EQ(shop.cmbShopRegion.toolTip + dialog.lblRegionen.caption, "ZinnenZinnen");
    std::string rows;
    for (const auto& row : shop.lvLaden.rows)
        for (const std::string_view text :
             {ShopCell(row, ShopTextColumn), row.Weight, ShopCell(row, ShopPriceColumn),
              row.ShopItemLine, row.ShopAvailability})
            rows.append(text) += " ";
    EXPECT_EQ(rows,
              "Dolch 5 8,4D Dolch5 PU| Gürtel 5 12S Gürtel1 GA| Speer 5 300H Speer4 GA| "_ansi);
}

TEST_F(GenerateShops, OddConfigurationsDrawWhatTheyName) {
    // What stands in the section, and how often the category is drawn from.
    const std::vector<std::pair<std::string_view, int>> cases = {
        {"WareCount=-1;Ware1=Kleidung", 0},
        {"WareCount=99999;Ware1=Kleidung", 1},
        {"WareCount=2;Ware1=Fehlt;Ware2=Kleidung", 1},
        {"WareCount=1;Ware2=Kleidung", 0},
        {"warecount=1;WARE1=Kleidung", 1},
        {"WareCount=2;Ware1=Kleidung;Ware2=Kleidung", 2},
        {"WareCount=1;Ware1=../Emporium/Kleidung", 0},
        {"WareCount=1;Ware1=K*", 0},
        {"WareCount=1;Ware1=Ordner", 0},
        {"WareCount=1;Ware1=", 0}};
    program.Write("Emporium/.dat", Item("Falle1"));
    script.platform.disk.files.createFolder(program.folders.EmporiumFolder() / "Ordner.dat");
    for (const auto& [section, times] : cases) {
        std::string lines(section);
        std::replace(lines.begin(), lines.end(), ';', '\n');
        Configure({"[Krämer]"_ansi, lines});
        Wares();
        EXPECT_EQ(shop.ShopCount(), 2 * times) << section;
        EXPECT_EQ(shop.cmbShopPreise.Text(), times > 0 ? "Teuer" : "") << "only with wares";
        EXPECT_EQ(shop.cmbShopQualität.Text() + shop.txtShopart.text, "SpezialistKrämer"_ansi);
    }
}

TEST_F(GenerateShops, WhatIsWrongWithAFileIsTold) {
    Configure({"[Krämer]"_ansi, "WareCount=2", "Ware1=Kleidung", "Ware2=Waffen"});
    program.Write("Emporium/Waffen.dat", Item("Axt1"));
    for (const auto& [name, wares] : {std::pair<std::string, std::string>{"Kleidung.dat", "Axt "},
                                      {"ShopgeneratorConfig.dat", ""}}) {
        program.failingCall = "read " + name;
        script.ExpectMessage(name + ": ");
        EXPECT_EQ(Wares(), wares);
    }
    program.failingCall.clear();
    program.Write("Emporium/Kleidung.dat", Item("Hemd1") + "Rest1\r\n");
    script.ExpectMessage("Kleidung.dat: Der letzte Datensatz");
    EXPECT_EQ(Wares(), "Axt Hemd ");
    for (const auto lines : {"Ware1=Kleidung", "WareCount=drei", "[Schmied]\nWareCount=1"}) {
        Configure({"[Krämer]"_ansi, lines});
        script.ExpectMessage("ShopgeneratorConfig.dat: Zu dieser ");
        EXPECT_EQ(Wares(), "");
    }
    program.Write("Emporium/ShopgeneratorShops.dat", "");
    script.ExpectMessage("ShopgeneratorShops.dat: Die Datei ist leer");
    OpenGenerator(dialog, shop, script.platform);
}

TEST_F(GenerateShops, TheButtonNeedsEveryChoiceInAnyOrder) {
    program.Write("Emporium/ShopgeneratorShops.dat", "\nZelter");
    std::vector choices = {ChooseGeneratorPrices, ChooseGeneratorQuality, ChooseShopType};
    std::sort(choices.begin(), choices.end());
    do {
        OpenGenerator(dialog, shop, script.platform);
        for (const auto choose : choices) {
            EXPECT_FALSE(dialog.cmdStart.enabled);
            choose(dialog, 1);
        }
        EXPECT_TRUE(dialog.cmdStart.enabled);
    } while (std::next_permutation(choices.begin(), choices.end()));
    ChooseShopType(dialog, 0);
    EXPECT_FALSE(dialog.cmdStart.enabled) << "an empty type is none";
    ChooseShopType(dialog, 1);
    TickShopRegion(dialog, true);
    ChooseGeneratorPrices(dialog, 0);
    EXPECT_FALSE(dialog.cmdStart.enabled) << "a ticked box needs a region";
    ChooseGeneratorRegion(dialog, script.platform, 18);
    EXPECT_TRUE(dialog.cmdStart.enabled && dialog.cmbShopRegion.enabled);
    shop.lvLaden.rows.resize(1);
    for (const bool goOn : {false, true}) {
        script.ExpectYesNo(
            "Ihr arbeitet momentan an einem Shop, beim Start des Generators werden "
            "sämtliche Werte verworfen ! Wollt ihr den Generator wirklich starten ?"_ansi,
            goOn);
        OpenGenerator(dialog, shop, script.platform);
        EXPECT_TRUE(dialog.chkShopRegion.ticked != goOn && shop.ShopCount() == (goOn ? 0 : 1));
    }
    EXPECT_EQ(dialog.cmbShopQualität.Entries().back(), "5 - Spezialist");
    EXPECT_FALSE(dialog.chkShopRegion.ticked || dialog.cmbShopRegion.enabled || dialog.open);
    EXPECT_EQ(dialog.cmbShopRegion.Selection(), -1);
}

TEST_F(GenerateShops, ARunStopsWithABoxAtAFullShop) {
    Configure({"[Krämer]"_ansi, "WareCount=2", "Ware1=Kleidung", "Ware2=Kleidung"});
    for (const int room : {4, 1}) {
        script.Throw(std::vector(room > 1 ? 4 : 2, 6));
        ClearShop(shop);
        while (shop.ShopCount() < MaxRows - room)
            shop.lvLaden.rows.push_back(MakeShopRow({"Seil1", "", "1H", "", ""}));
        if (room == 1)
            script.ExpectMessage("");
        Run();
        EXPECT_EQ(shop.ShopCount(), MaxRows);
        EXPECT_EQ(ShopCell(shop.lvLaden.rows.front(), ShopTextColumn),
                  room == 1 ? "Hemd" : "Gürtel"_ansi);
        EXPECT_EQ(shop.cmbShopPreise.Text(), "Teuer");
    }
}

} // namespace
} // namespace emporium::test
