#include "regions/AtlasEngine.h"

#include "base/Subs.h"
#include "text/GermanOrder.h"

#include <algorithm>

namespace emporium {

namespace {

struct Neighbours {
    std::string_view region;
    std::array<std::string_view, 8> others; // unused places stay empty
};

constexpr std::array<Neighbours, RegionCount> NeighbourTable = {{
    {"NO", {"TH", "BO", "FI", "EL", "OR", "WE"}},
    {"TH", {"NO", "OR", "HA"}},
    {"BO", {"NO", "WE", "TO"}},
    {"FI", {"NO"}},
    {"EL", {"NO", "WE"}},
    {"OR", {"NO", "TH", "WE", "HA"}},
    {"WE", {"NO", "BO", "EL", "OR", "TO", "HA", "GA", "ZW"}},
    {"TO", {"BO", "WE", "HA"}},
    {"HA", {"TH", "OR", "WE", "ZW", "LF"}},
    {"GA", {"WE", "TO", "ZW", "PU", "MH"}},
    {"ZW", {"WE", "HA", "GA", "PU", "LF"}},
    {"PU", {"GA", "ZW", "LF", "KH", "MH"}},
    {"LF", {"HA", "ZW", "PU", "ZY", "KH", "SÜ"_ansi}},
    {"ZY", {"LF", "SÜ"_ansi}},
    {"KH", {"PU", "LF", "MH", "SÜ"_ansi}},
    {"MH", {"GA", "PU", "KH", "MA"}},
    {"MA", {"MH"}},
    {"SÜ"_ansi, {"LF", "ZY", "KH", "MO", "WA"}},
    {"MO", {"SÜ"_ansi}},
    {"WA", {"SÜ"_ansi}},
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
std::size_t IndexOf(std::string_view code) {
    const auto found = std::find(PackedCodes.begin(), PackedCodes.end(), Packed(code));
    return found == PackedCodes.end() ? 0 : static_cast<std::size_t>(found - PackedCodes.begin());
}

} // namespace

RegionTable RegionInit() {
    RegionTable table;
    for (auto& row : table.RegionDistances)
        row.fill(FarDistance);
    for (const auto& [region, others] : NeighbourTable)
        for (const std::string_view other : others)
            if (!other.empty())
                table.RegionDistances[IndexOf(region)][IndexOf(other)] = NearDistance;
    return table;
}

std::optional<std::int16_t> RegionDistance(const RegionTable& table, std::string_view first,
                                           std::string_view second) {
    const std::size_t i = IndexOf(first);
    const std::size_t j = IndexOf(second);
    if (i == 0 || j == 0)
        return std::nullopt;
    return table.RegionDistances[i][j];
}

std::string RegionDescription(const FileLayer& files, const Folders& folders,
                              std::string_view code) {
    return ReadIniValue(files, folders.DataFolder / "Atlas" / "Regionen.dat", code, "Desc");
}

std::vector<std::string_view> AlphabeticalRegionCodes() {
    std::vector<std::string_view> codes(RegionCodes.begin() + 1, RegionCodes.end());
    std::sort(codes.begin(), codes.end(), GermanLess);
    return codes;
}

} // namespace emporium
