// Alphabetical order of everything that the user sees sorted: drop-down lists, list boxes and the
// text sort of the list views. German dictionary order: umlauts stand with their base letters, and
// case and umlaut count only between texts that are otherwise equal. The order is total.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace emporium {

bool GermanLess(std::string_view left, std::string_view right);

/// The indices 0 to count - 1 in the order of their texts. Equal texts keep the order of their
/// indices, in both directions.
std::vector<int> GermanOrderOf(std::size_t count, bool descending,
                               const std::function<std::string_view(std::size_t)>& textAt);

} // namespace emporium
