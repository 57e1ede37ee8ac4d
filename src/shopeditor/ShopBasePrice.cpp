#include "shopeditor/ShopBasePrice.h"

#include "text/GermanNumber.h"

#include <cmath>

namespace emporium {

BasePrice ReadBasePrice(std::string_view price) {
    const auto number = ReadGermanNumber(price);
    const std::int16_t whole = RoundToInt16(number.value_or(0));
    return {whole, number && std::abs(*number - whole) < 1};
}

} // namespace emporium
