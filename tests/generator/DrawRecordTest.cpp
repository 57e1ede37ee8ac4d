#include "generator/ShopGeneration.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace emporium::test
