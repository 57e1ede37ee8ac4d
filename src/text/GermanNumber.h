// Numbers as the user writes them: German notation, a decimal comma, points between thousands. No
// locale is consulted anywhere.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace emporium {

/// The number of the text: an optional sign, digits with points that count for nothing, and an
/// optional part behind one comma; blanks around it are passed over. Nothing if the text is no
/// number. A number beyond the range of double becomes an infinity.
std::optional<double> ReadGermanNumber(std::string_view text);

/// The number rounded to a whole one, ties to the even number; beyond 16 bits the nearest limit.
std::int16_t RoundToInt16(double number);

} // namespace emporium
