// The data that ships: its form, that its files fit together, and that the world in it holds.

#include "generator/ShopGeneration.h"
#include "generator/ShopTypes.h"
#include "generator/WareFiles.h"
#include "regions/AtlasEngine.h"
#include "regions/Availability.h"
#include "store/ArsenalImport.h"
#include "store/CategoryFiles.h"
#include "store/CategoryList.h"
#include "support/ProgramFolder.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <regex>
#include <set>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

const Disk disk{SystemFiles(), InitFolders(fs::path(STARTER_DATA).parent_path())};

std::vector<ItemRecord> ItemsOf(std::string_view category) {
    const CategoryFile file = ReadCategoryFile(disk, category);
    EXPECT_FALSE(file.records.empty() || file.cutOff) << category;
    std::vector<ItemRecord> items;
    std::transform(file.records.begin(), file.records.end(), std::back_inserter(items), CopyOf);
    return items;
}

bool IsSound(const ItemRecord& item) {
    static const std::regex form(".*[^0-9 ][1-5];(|0,[0-9]*[1-9]|[1-9][0-9]*(,[0-9]+)?);"
                                 "[1-9][0-9]{0,3}[DSHP];([A-Z\xDC]{2}\\|)+");
    const auto codes = AvailabilityCodes(item[AvailabilityField]);
    const auto known = AlphabeticalRegionCodes();
    return std::regex_match(item[0] + ';' + item[1] + ';' + item[2] + ';' + item[4], form) &&
           item[DescriptionField].ends_with('.') &&
           std::includes(known.begin(), known.end(), codes.begin(), codes.end());
}

// What every item costs in Pfennig and weighs, by its name, which no two items share.
std::map<std::string, std::pair<double, double>, std::less<>> AllItems() {
    std::map<std::string, std::pair<double, double>, std::less<>> all;
    for (const std::string& category : ReadCategoryNames(disk).names)
        for (const ItemRecord& item : ItemsOf(category)) {
            const int unit = static_cast<int>(std::string("PHSD").find(item[PriceField].back()));
            const double pfennig = std::stod(item[PriceField]) * std::pow(10, unit);
            const double weight = std::strtod(item[WeightField].c_str(), nullptr);
            EXPECT_TRUE(IsSound(item)) << category << ": " << item[NameField];
            EXPECT_TRUE(
                all.try_emplace(std::string(ItemName(ViewOf(item))), pfennig, weight).second)
                << category << ": " << item[NameField];
        }
    return all;
}

TEST(StarterData, IsWrittenInTheCodePageAndTheFirstStartImportsNothing) {
    for (const auto& entry : fs::recursive_directory_iterator(disk.folders.DataFolder)) {
        const std::string text =
            entry.is_directory() ? "\r\n" : disk.files.read(entry, LargestFile).bytes;
        const auto belongs = [](char c) {
            return (c >= ' ' && c <= '~') || "\r\nÄÖÜäöüß–„“"_ansi.find(c) != std::string::npos;
        };
        EXPECT_TRUE(text.ends_with("\r\n") && std::all_of(text.begin(), text.end(), belongs))
            << entry.path();
        const bool names = entry.path().parent_path().filename() == "Borough";
        EXPECT_GE(std::count(text.begin(), text.end(), '\n'), names ? 60 : 1) << entry.path();
    }
    const ProgramFolder fresh;
    const Disk copy{disk.files, fresh.folders};
    std::vector<std::string> faults;
    fs::copy(disk.folders.DataFolder, fresh.folders.DataFolder, fs::copy_options::recursive);
    ImportArsenal(copy, faults);
    EXPECT_TRUE(faults.empty());
    for (const std::string_view name : FixedCategories())
        EXPECT_EQ(ReadCategoryFile(copy, name).records.size(), ItemsOf(name).size()) << name;
}

// One is worth at least `least` and at most `most` times the other, Unze for Unze if told.
TEST(StarterData, PricesHangTogether) {
    const auto all = AllItems();
    struct {
        std::string_view one, other;
        double least, most;
        bool byWeight;
    } const relations[] = {
        {"Mehl, ein Beutel", "Weizen, fünf Säcke"_ansi, 1.2, 5, true},
        {"Roggenbrot, Laib", "Mehl, ein Beutel", 1.1, 3, true},
        {"Salz, ein Sack", "Salz, ein Säckchen"_ansi, 0.2, 1, true},
        {"Käseräder, zehn"_ansi, "Bergkäse, ein Stück"_ansi, 0.2, 1, true},
        {"Rohseide, ein Ballen", "Seide, Elle", 0.2, 1, true},
        {"Tabakblätter, ein Fass"_ansi, "Landtabak, Beutel", 0.2, 1, true},
        {"Schwämme, ein Netz"_ansi, "Badeschwamm", 0.2, 1, true},
        {"Wolldecke", "Schafwolle, ein Sack", 1, 5, true},
        {"Goldkette", "Silber, ein Barren", 16, 40, true},
        {"Fuchspelzmantel", "Fuchsfell, rot", 2, 50, false},
        {"Reitpferd", "Mietpferd, ein Tag", 50, 1000, false},
        {"Langschwert", "Einzelkammer, eine Nacht", 50, 200, false},
    };
    for (const auto& [one, other, least, most, byWeight] : relations) {
        const auto [price, weight] = all.find(one)->second;
        const auto [otherPrice, otherWeight] = all.find(other)->second;
        const double times = price / otherPrice * (byWeight ? otherWeight / weight : 1);
        EXPECT_TRUE(least <= times && times <= most) << one << ": " << times << " " << other;
    }
}

TEST(StarterData, EveryTypeHasItsOwnWaresAndAsManyAsOneReads) {
    std::vector<std::string> faults;
    std::set<std::set<std::string>> sets;
    std::set<std::string> sold;
    const auto types = ReadShopTypes(disk, faults);
    for (const std::string& type : types) {
        std::set<std::string> categories;
        double usual = 0; // the wares to be expected of a solid shop
        const IniSection config = ReadTypeConfig(disk, type, faults);
        for (std::int16_t n = 1; n <= ReadWareCount(config); ++n) {
            const std::string category = ReadWareCategory(config, n);
            for (const ItemRecord& item : ItemsOf(category)) // six faces by Wert 1 to 5
                usual +=
                    std::array{6, 5, 4, 3, 1}.at(item[NameField].back() - std::size_t{'1'}) / 6.0;
            categories.insert(category);
        }
        EXPECT_TRUE(categories.size() >= 2 && sets.insert(categories).second) << type;
        EXPECT_TRUE(usual >= 10 && usual <= 60) << type << ": " << usual;
        sold.merge(categories);
    }
    EXPECT_EQ(sold.size(), ReadCategoryNames(disk).names.size());
    const auto page = disk.files.read(disk.folders.HilfeFolder / "Emporium.htm", LargestFile).bytes;
    for (const auto& [count, what] :
         {std::pair(sold.size(), " Kategorien mit zusammen "),
          std::pair(AllItems().size(), " Gegenst"), std::pair(types.size(), " Arten sind")})
        EXPECT_NE(page.find(std::to_string(count) + what), page.npos) << count << what;
}

} // namespace
} // namespace emporium::test
