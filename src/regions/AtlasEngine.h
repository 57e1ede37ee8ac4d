// The twenty regions of the game world: their codes, how far they lie apart, and their long names.
#pragma once

#include "base/Disk.h"
#include "text/Ansi.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace emporium {

inline constexpr std::size_t RegionCount = 20;

/// The codes in table order, from index 1; index 0 is no region.
inline constexpr std::array<std::string_view, RegionCount + 1> RegionCodes = {
    "",   "NO", "TH", "BO", "FI", "EL", "OR", "WE",      "TO", "HA", "GA",
    "ZW", "PU", "LF", "ZY", "KH", "MH", "MA", "SÜ"_ansi, "MO", "WA"};

/// The distance from one region to another: 1 between neighbours, else 2, not in every case the
/// same both ways. Nothing if either code is unknown. Codes are compared exactly.
std::optional<std::int16_t> RegionDistance(std::string_view first, std::string_view second);

/// The long name of a region, empty if the region file does not tell it.
std::string RegionDescription(const Disk& disk, std::string_view code);

/// The codes in alphabetical order, as the lists offer them.
std::vector<std::string_view> AlphabeticalRegionCodes();

} // namespace emporium
