// Shops of every shipped type, drawn by the generator as a user would have them drawn.

#include "generator/GeneratorConfig.h"
#include "generator/ShopGeneration.h"
#include "shopeditor/ShopList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace emporium::test {
namespace {

constexpr int PrintableRows = 3000;
constexpr int Regions = static_cast<int>(RegionCount);

class StarterShops : public testing::Test {
protected:
    StarterShops() {
        platform.files = SystemFiles();
        platform.RollDice = [this](std::int32_t n) {
            return static_cast<std::int32_t>(random_() % static_cast<std::uint32_t>(n)) + 1;
        };
        platform.SetWaitPointer = [](bool) {};
        platform.ShowMessage = [](std::string_view text) { ADD_FAILURE() << text; };
        std::vector<std::string> faults;
        config = ReadGeneratorConfig(platform.files, folders, faults);
        for (const std::string& type : ReadShopTypes(platform.files, folders, faults))
            dialog.cmbShopBeruf.Add(type);
    }

    // All that a shop of the type can sell.
    std::vector<ItemRecord> WaresOf(std::string_view type) const {
        std::vector<ItemRecord> wares;
        for (std::int16_t n = 1; n <= ReadWareCount(config, type); ++n) {
            const auto category =
                ReadCategoryFile(platform.files, folders, ReadWareCategory(config, type, n));
            std::transform(category.records.begin(), category.records.end(),
                           std::back_inserter(wares), CopyOf);
        }
        return wares;
    }

    const Folders folders = InitFolders(std::filesystem::path(STARTER_DATA).parent_path());
    Platform platform;
    IniFile config;
    frmEmporiumGenerator dialog;
    RegionTable regions = RegionInit();

private:
    std::mt19937 random_{1}; // the same throws every time
};

// Drawing ends at the first ware that joins, which takes a fraction of a whole shop's time.
TEST_F(StarterShops, AtMostOneInAHundredIsEmptyAndAllCanBePrinted) {
    for (const std::string& type : dialog.cmbShopBeruf.Entries()) {
        const auto wares = WaresOf(type);
        EXPECT_LE(wares.size(), PrintableRows) << type;
        for (int quality = 2; quality <= 5; ++quality) {
            int filled = 0;
            for (int run = 0; run < 100; ++run) {
                const auto region = RegionCodes[static_cast<std::size_t>(run % (Regions + 1))];
                const ShopWishes wishes{quality, !region.empty(), region};
                filled += std::any_of(wares.begin(), wares.end(), [&](const ItemRecord& ware) {
                    return DrawRecord(ViewOf(ware), wishes, regions, platform.RollDice);
                });
            }
            EXPECT_GE(filled, 99) << type << ", quality " << quality;
        }
    }
}

TEST_F(StarterShops, AWholeRunOfEveryTypeFillsTheShop) {
    ShopEditor shop;
    const int types = static_cast<int>(dialog.cmbShopBeruf.Entries().size());
    ASSERT_GT(types, 0);
    for (int type = 0; type < types; ++type) {
        ChooseShopType(dialog, type);
        ChooseGeneratorPrices(dialog, type % 5);
        ChooseGeneratorQuality(dialog, 1 + type % 4);
        TickShopRegion(dialog, true);
        ChooseGeneratorRegion(dialog, platform, folders, type % Regions);
        ClearShop(shop);
        GenerateShop(dialog, shop, regions, platform, folders);
        EXPECT_GT(shop.ShopCount(), 0) << dialog.cmbShopBeruf.Text();
        for (const auto& row : shop.lvLaden.rows)
            EXPECT_NE(row->ShopBasePrice, 0) << row->Text;
    }
}

} // namespace
} // namespace emporium::test
