// Every data file that ships: its form, and whether the files fit together.

#include "generator/GeneratorConfig.h"
#include "generator/ShopGeneration.h"
#include "regions/AtlasEngine.h"
#include "regions/Availability.h"
#include "store/ArsenalImport.h"
#include "store/CategoryFiles.h"
#include "store/CategoryList.h"
#include "support/ProgramFolder.h"
#include "text/Ansi.h"
#include "text/LineReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <regex>
#include <set>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

// For messages, which are read on a console.
std::string Shown(std::string_view text) {
    const std::u8string utf8 = ToUtf8(text);
    return {utf8.begin(), utf8.end()};
}

// All that the shipped texts need of the code page; the bytes of UTF-8 are not among it.
bool IsTextCharacter(char c) {
    return (c >= ' ' && c <= '~') || "ÄÖÜäöüß–„“"_ansi.find(c) != std::string_view::npos;
}

std::string ItemFaults(const RecordView& record) {
    static const std::regex name(".*[^0-9 ][1-5]");
    static const std::regex weight("|0,[0-9]*[1-9]|[1-9][0-9]*(,[0-9]+)?");
    static const std::regex price("[1-9][0-9]{0,4}[DSHP]");
    const std::string_view regions = record[AvailabilityField];
    const std::string priceLine(record[PriceField]);
    const auto codes = AvailabilityCodes(regions);
    const auto known = AlphabeticalRegionCodes();
    std::string faults;
    const auto demand = [&faults](bool met, const char* what) { faults += met ? "" : what; };
    const auto matches = [](std::string_view text, const std::regex& form) {
        return std::regex_match(text.begin(), text.end(), form);
    };
    demand(matches(record[NameField], name), " name or Wert;");
    demand(matches(record[WeightField], weight), " weight;");
    demand(matches(priceLine, price) && std::stoi(priceLine) <= 32767, " price;");
    demand(record[DescriptionField].ends_with('.'), " description;");
    demand(!codes.empty() && BuildAvailability({codes.begin(), codes.end()}) == regions &&
               std::includes(known.begin(), known.end(), codes.begin(), codes.end()) &&
               std::adjacent_find(codes.begin(), codes.end(), std::greater_equal<>()) ==
                   codes.end(),
           " regions;");
    return faults;
}

class StarterData : public testing::Test {
protected:
    std::string Text(const fs::path& file) const {
        const FileText text = files.read(file);
        EXPECT_TRUE(text.IsWhole()) << file;
        return text.bytes;
    }

    std::vector<std::string> LinesOf(const fs::path& file) const {
        const std::string text = Text(file);
        std::vector<std::string> lines;
        LineReader reader(text);
        for (std::string_view line; reader.Next(line);)
            lines.emplace_back(line);
        return lines;
    }

    static std::set<std::string> NamesIn(const fs::path& folder) {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.insert(FromPath(entry.path().filename()));
        return names;
    }

    // Counts the name, and says where it stood before if it is not new.
    void ExpectNew(const std::string& name, const std::string& place) {
        const auto [known, isNew] = places_.emplace(FoldCase(name), place);
        EXPECT_TRUE(isNew) << Shown(place) << ": " << Shown(name) << " stands in "
                           << Shown(known->second) << ", too";
    }

    const Disk disk{SystemFiles(), InitFolders(fs::path(STARTER_DATA).parent_path())};
    const Folders& folders = disk.folders;
    const FileLayer& files = disk.files;
    const std::vector<std::string> categories = ReadCategoryNames(disk).names;

private:
    std::map<std::string, std::string> places_;
};

TEST_F(StarterData, EveryFileIsLinesOfTheCodePage) {
    for (const auto& entry : fs::recursive_directory_iterator(folders.DataFolder)) {
        if (entry.is_directory())
            continue;
        const std::string text = Text(entry.path());
        EXPECT_TRUE(text.ends_with("\r\n")) << entry.path();
        const bool blanksBelong = entry.path() == CategoryListPath(folders);
        std::string_view rest = text;
        for (int number = 1; !rest.empty(); ++number) {
            const std::string_view line = rest.substr(0, rest.find("\r\n"));
            EXPECT_TRUE(std::all_of(line.begin(), line.end(), IsTextCharacter) &&
                        (blanksBelong || Trim(line) == line))
                << entry.path() << " line " << number << ": " << Shown(line);
            rest.remove_prefix(std::min(line.size() + 2, rest.size()));
        }
    }
}

TEST_F(StarterData, TheCategoryListNamesTheFilesOfItems) {
    EXPECT_GE(categories.size(), 21U);
    std::string list = " " + std::to_string(categories.size()) + " \r\n";
    std::set<std::string> expected = {"ItemKategorien.dat", "ShopgeneratorConfig.dat",
                                      "ShopgeneratorShops.dat"};
    for (const std::string& name : categories) {
        ExpectNew(name, "ItemKategorien.dat");
        expected.insert(name + ".dat");
        list += name + "\r\n";
    }
    EXPECT_EQ(Text(CategoryListPath(folders)), list);
    for (const std::string_view fixed : FixedCategories())
        EXPECT_TRUE(expected.contains(std::string(fixed) + ".dat")) << Shown(fixed);
    EXPECT_EQ(NamesIn(folders.EmporiumFolder()), expected);
}

TEST_F(StarterData, EveryItemIsSoundAndRareThingsAreRare) {
    std::map<char, int> marks;
    std::set<std::string> descriptions;
    int own = 0;
    for (const std::string& category : categories) {
        const CategoryFile file = ReadCategoryFile(disk, category);
        EXPECT_FALSE(file.records.empty() || file.cutOff) << Shown(category);
        own += IsFixedCategory(category) ? 0 : static_cast<int>(file.records.size());
        for (const RecordView& record : file.records) {
            const std::string item = category + ": " + std::string(ItemName(record));
            EXPECT_EQ(ItemFaults(record), "") << Shown(item);
            ExpectNew(std::string(ItemName(record)), category);
            EXPECT_TRUE(descriptions.emplace(record[DescriptionField]).second)
                << Shown(item) << " has another's description";
            ++marks[record[NameField].back()];
            ++marks[record[PriceField].back()];
        }
    }
    EXPECT_GE(own, 700);
    for (const char mark : {'D', 'S', 'H', 'P', '5'})
        EXPECT_GT(marks[mark], 0) << mark;
    for (char wert = '2'; wert <= '5'; ++wert)
        EXPECT_LT(marks[wert], marks[static_cast<char>(wert - 1)]) << wert;
}

TEST_F(StarterData, EveryRegionHasALongNameOfItsOwn) {
    const auto file = folders.DataFolder / "Atlas" / "Regionen.dat";
    for (const std::string_view code : AlphabeticalRegionCodes()) {
        const std::string name = RegionDescription(disk, code);
        EXPECT_FALSE(name.empty()) << Shown(code);
        ExpectNew(name, std::string(code));
    }
    const auto lines = LinesOf(file);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) { return line.starts_with('['); }),
              static_cast<std::ptrdiff_t>(RegionCount));
}

TEST_F(StarterData, TheArsenalIsFilledAndIsWhatTheFixedCategoriesHold) {
    const std::map<std::string_view, std::size_t> atLeast = {
        {"Nahkampfwaffen", 60}, {"Fernwaffen", 25}, {"Rüstungen"_ansi, 35}};
    const ProgramFolder empty;
    fs::remove(empty.folders.DataFolder / "Arsenal");
    fs::copy(folders.DataFolder / "Arsenal", empty.folders.DataFolder / "Arsenal");
    std::vector<std::string> faults;
    ImportArsenal(Disk{files, empty.folders}, faults);
    EXPECT_TRUE(faults.empty()) << faults.front();
    for (const std::string_view name : FixedCategories()) {
        const CategoryFile shipped = ReadCategoryFile(disk, name);
        const CategoryFile imported = ReadCategoryFile(Disk{files, empty.folders}, name);
        EXPECT_GE(shipped.records.size(), atLeast.at(name)) << Shown(name);
        ASSERT_EQ(imported.records.size(), shipped.records.size()) << Shown(name);
        for (std::size_t i = 0; i < shipped.records.size(); ++i) {
            ItemRecord expected = CopyOf(shipped.records[i]);
            expected[NameField].back() = '1'; // the Wert is the category's own
            EXPECT_EQ(CopyOf(imported.records[i]), expected) << Shown(name);
        }
    }
}

TEST_F(StarterData, NoNameStandsInTheNameListsTwice) {
    std::set<std::string> lists = {"Mohas", "ElfenNachname1", "ElfenNachname2"};
    for (const std::string_view race : {"Bornland", "Gareth", "Norbarden", "Nivesen", "Zwerge",
                                        "Thorwaler", "Tulamiden", "Elfen"})
        for (const std::string_view sex : {"Männlich"_ansi, std::string_view("Weiblich")})
            lists.insert(std::string(race).append(sex));
    for (const std::string_view race : {"Bornland", "Gareth", "Norbarden"})
        lists.insert(std::string(race).append("Nachname"));
    for (const std::string& list : lists) {
        const auto names = LinesOf(folders.DataFolder / "Borough" / ToPath(list + ".dat"));
        EXPECT_GE(names.size(), list.starts_with("ElfenNachname") ? 60U : 120U) << Shown(list);
        for (const std::string& name : names) {
            EXPECT_FALSE(name.empty()) << Shown(list);
            ExpectNew(name, list);
        }
    }
    EXPECT_EQ(NamesIn(folders.DataFolder / "Borough").size(), lists.size());
}

TEST_F(StarterData, EveryShopTypeSellsCategoriesThatExist) {
    std::vector<std::string> faults;
    const auto types = ReadShopTypes(disk, faults);
    EXPECT_TRUE(faults.empty());
    EXPECT_GE(types.size(), 30U);
    std::set<std::string> heads;
    std::set<std::string> sold;
    for (const std::string& type : types) {
        ExpectNew(type, "ShopgeneratorShops.dat");
        const IniSection config = ReadTypeConfig(disk, type, faults);
        heads.insert("[" + type + "]");
        const std::int16_t count = ReadWareCount(config).value_or(0);
        EXPECT_GE(count, 1) << Shown(type);
        for (std::int16_t n = 1; n <= count; ++n) {
            const std::string category = ReadWareCategory(config, n);
            EXPECT_EQ(std::count(categories.begin(), categories.end(), category), 1)
                << Shown(type) << " Ware" << n << ": " << Shown(category);
            ExpectNew(type + ": " + category, "ShopgeneratorConfig.dat");
            sold.insert(category);
        }
        EXPECT_EQ(ReadWareCategory(config, static_cast<std::int16_t>(count + 1)), "")
            << Shown(type) << " has more wares than it counts";
    }
    EXPECT_EQ(sold.size(), categories.size()) << "a category that no shop sells";
    std::set<std::string> sections;
    for (const std::string& line : LinesOf(folders.EmporiumFolder() / "ShopgeneratorConfig.dat"))
        if (line.starts_with('[') && !sections.insert(line).second)
            ADD_FAILURE() << Shown(line) << " stands there twice";
    EXPECT_EQ(sections, heads);
}

// Drawing ends at the first ware that joins, which takes a fraction of a whole shop's time.
TEST_F(StarterData, AtMostOneShopInAHundredIsEmptyAndAllCanBePrinted) {
    constexpr std::size_t printableRows = 3000;
    std::mt19937 random(1); // the same throws every time
    const Die die = [&random](std::int32_t n) {
        return static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(n)) + 1;
    };
    std::vector<std::string> faults;
    for (const std::string& type : ReadShopTypes(disk, faults)) {
        const IniSection config = ReadTypeConfig(disk, type, faults);
        std::vector<ItemRecord> wares;
        for (std::int16_t n = 1; n <= ReadWareCount(config); ++n) {
            const auto file = ReadCategoryFile(disk, ReadWareCategory(config, n));
            std::transform(file.records.begin(), file.records.end(), std::back_inserter(wares),
                           CopyOf);
        }
        EXPECT_LE(wares.size(), printableRows) << Shown(type);
        for (int quality = 2; quality <= 5; ++quality) {
            int filled = 0;
            for (std::size_t run = 0; run < 100; ++run) {
                const auto region = RegionCodes[run % (RegionCount + 1)];
                const ShopWishes wishes{quality, !region.empty(), region};
                filled += std::any_of(wares.begin(), wares.end(), [&](const ItemRecord& ware) {
                    return DrawRecord(ViewOf(ware), wishes, die);
                });
            }
            EXPECT_GE(filled, 99) << Shown(type) << ", quality " << quality;
        }
    }
}

TEST_F(StarterData, TheHelpPageFindsWhatItPointsToAndCountsWhatShips) {
    const std::string page = Text(folders.HilfeFolder / "Emporium.htm");
    std::vector<std::string> faults;
    std::size_t items = 0;
    for (const std::string& category : categories)
        items += ReadCategoryFile(disk, category).records.size();
    for (const std::string& count :
         {std::to_string(categories.size()) + " Kategorien mit", std::to_string(items) + " Gegenst",
          std::to_string(ReadShopTypes(disk, faults).size()) + " Arten"})
        EXPECT_NE(page.find(count), page.npos) << count;
    const std::regex link("(src|href)=\"([^\"]*)\"");
    std::set<std::string> shown;
    for (auto it = std::sregex_iterator(page.begin(), page.end(), link); it != decltype(it)();
         ++it) {
        const std::string target = (*it)[2];
        if (target.starts_with('#')) {
            EXPECT_NE(page.find("id=\"" + target.substr(1) + "\""), page.npos) << target;
        } else {
            EXPECT_TRUE(fs::is_regular_file(folders.HilfeFolder / target)) << target;
            shown.insert(fs::path(target).filename().string());
        }
    }
    EXPECT_EQ(shown, NamesIn(folders.HilfeFolder / "Bilder"));
}

} // namespace
} // namespace emporium::test
