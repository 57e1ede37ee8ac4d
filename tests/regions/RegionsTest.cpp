#include "regions/AtlasEngine.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace emporium::test {
namespace {

// Every border once, and behind them the two that open one way only.
constexpr std::string_view Borders =
    "BO-NO BO-TO BO-WE EL-NO EL-WE FI-NO GA-MH GA-PU GA-WE GA-ZW HA-LF HA-OR HA-TH HA-WE HA-ZW "
    "KH-LF KH-MH KH-PU KH-SÜ LF-PU LF-SÜ LF-ZW LF-ZY MA-MH MH-PU MO-SÜ NO-OR NO-TH NO-WE OR-TH "
    "OR-WE PU-ZW SÜ-WA SÜ-ZY TO-WE WE-ZW TO>HA GA>TO "_ansi;

using Pair = std::pair<std::string_view, std::string_view>;

TEST(RegionDistance, NeighboursAreAtOneAndAllElseAtTwo) {
    std::set<Pair> neighbours;
    for (std::size_t i = 0; i < Borders.size(); i += 6) {
        neighbours.emplace(Borders.substr(i, 2), Borders.substr(i + 3, 2));
        if (Borders[i + 2] == '-')
            neighbours.emplace(Borders.substr(i + 3, 2), Borders.substr(i, 2));
    }
    ASSERT_EQ(neighbours.size(), 74U);
    for (std::size_t i = 1; i <= RegionCount; ++i)
        for (std::size_t j = 1; j <= RegionCount; ++j) {
            const Pair pair(RegionCodes[i], RegionCodes[j]);
            EXPECT_EQ(RegionDistance(pair.first, pair.second), neighbours.contains(pair) ? 1 : 2)
                << pair.first << " " << pair.second;
        }
    for (const std::string_view other : {"", "no", "N", "NO|", " NO", "XX"}) {
        EXPECT_EQ(RegionDistance(other, "NO"), std::nullopt) << other;
        EXPECT_EQ(RegionDistance("NO", other), std::nullopt) << other;
    }
}

} // namespace
} // namespace emporium::test
