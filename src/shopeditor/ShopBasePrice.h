// The price of a ware from which every price level starts.
#pragma once

#include <cstdint>
#include <string_view>

namespace emporium {

struct BasePrice {
    std::int16_t ShopBasePrice = 0; // whole, without unit and price level
    bool isClear = true;            // false if the item's price is no number of 16 bits
};

/// Half a coin goes to the even whole one. 0 for a text that is no number, and the nearest limit
/// for a number beyond 16 bits; both are not clear.
BasePrice ReadBasePrice(std::string_view price);

} // namespace emporium
