#include "regions/AtlasEngine.h"

#include "base/Subs.h"
#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

namespace {

struct Neighbours {
    std::string_view region;
    std::string_view others; // with a blank between them
};

constexpr std::array<Neighbours, RegionCount> NeighbourTable = {{
    {"NO", "TH BO FI EL OR WE"},
    {"TH", "NO OR HA"},
    {"BO", "NO WE TO"},
    {"FI", "NO"},
    {"EL", "NO WE"},
    {"OR", "NO TH WE HA"},
    {"WE", "NO BO EL OR TO HA GA ZW"},
    {"TO", "BO WE HA"},
    {"HA", "TH OR WE ZW LF"},
    {"GA", "WE TO ZW PU MH"},
    {"ZW", "WE HA GA PU LF"},
    {"PU", "GA ZW LF KH MH"},
    {"LF", "HA ZW PU ZY KH SÜ"_ansi},
    {"ZY", "LF SÜ"_ansi},
    {"KH", "PU LF MH SÜ"_ansi},
    {"MH", "GA PU KH MA"},
    {"MA", "MH"},
    {"SÜ"_ansi, "LF ZY KH MO WA"},
    {"MO", "SÜ"_ansi},
    {"WA", "SÜ"_ansi},
}};

constexpr std::int16_t FarDistance = 2;
constexpr std::int16_t NearDistance = 1;

// Both letters of a code as one number, which compares faster than a text; 0 for another length.
constexpr std::uint16_t Packed(std::string_view code) {
    if (code.size() != 2)
        return 0;
    return static_cast<std::uint16_t>(static_cast<unsigned char>(code[0]) << 8U |
                                      static_cast<unsigned char>(code[1]));
}

constexpr auto PackedCodes = [] {
    std::array<std::uint16_t, RegionCodes.size()> packed{};
    std::transform(RegionCodes.begin(), RegionCodes.end(), packed.begin(), Packed);
    return packed;
}();

// The index in table order, 0 for an unknown code.
constexpr std::size_t IndexOf(std::string_view code) {
    const auto found = std::find(PackedCodes.begin(), PackedCodes.end(), Packed(code));
    return found == PackedCodes.end() ? 0 : static_cast<std::size_t>(found - PackedCodes.begin());
}

// Both indexes 1 to 20 in table order.
using Distances = std::array<std::array<std::int16_t, RegionCount + 1>, RegionCount + 1>;

constexpr Distances RegionInit() {
    Distances distances{};
    for (auto& row : distances)
        row.fill(FarDistance);
    for (const Neighbours& entry : NeighbourTable)
        for (std::size_t i = 0; i < entry.others.size(); i += 3)
            distances[IndexOf(entry.region)][IndexOf(entry.others.substr(i, 2))] = NearDistance;
    return distances;
}

constexpr Distances RegionDistances = RegionInit();

} // namespace

std::optional<std::int16_t> RegionDistance(std::string_view first, std::string_view second) {
    const std::size_t i = IndexOf(first);
    const std::size_t j = IndexOf(second);
    if (i == 0 || j == 0)
        return std::nullopt;
    return RegionDistances[i][j];
}

std::string RegionDescription(const Disk& disk, std::string_view code) {
    return ReadIniValue(disk.files, disk.folders.DataFolder / "Atlas" / "Regionen.dat", code,
                        "Desc");
}

std::vector<std::string_view> AlphabeticalRegionCodes() {
    std::vector<std::string_view> codes(RegionCodes.begin() + 1, RegionCodes.end());
    std::sort(codes.begin(), codes.end(), GermanLess);
    return codes;
}

} // namespace emporium
