// Which names a new category can bear, so that its file is always a new plain file of its own.
#pragma once

#include "base/Disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// Why the name is refused, a German sentence; empty if a category can bear it. `listed` are
/// the names of the category list.
std::string CategoryNameRefusal(const Disk& disk, const std::vector<std::string>& listed,
                                std::string_view name);

} // namespace emporium
