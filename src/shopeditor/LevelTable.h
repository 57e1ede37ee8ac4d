// The levels of prices and of quality that a shop can have. The lists of the shop and of the
// generator offer them in this order, and their entries are known by their place in it.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace emporium {

struct PriceLevel {
    std::string_view name;
    int percent; // of the base price
};

inline constexpr std::array<PriceLevel, 5> PriceLevels = {{{"Sehr billig", 70},
                                                           {"Billig", 85},
                                                           {"Durchschnittlich", 100},
                                                           {"Teuer", 120},
                                                           {"Sehr teuer / Wucher", 150}}};

/// From quality 1 to 5: a quality is its place and one more.
inline constexpr std::array<std::string_view, 5> Qualities = {"Schlecht", "Einfach", "Solide",
                                                              "Sehr gut", "Spezialist"};

inline std::vector<std::string_view> PriceLevelNames() {
    std::vector<std::string_view> names;
    names.reserve(PriceLevels.size());
    for (const PriceLevel& level : PriceLevels)
        names.push_back(level.name);
    return names;
}

} // namespace emporium
