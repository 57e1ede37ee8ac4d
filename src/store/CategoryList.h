// The list of the categories: a number of names and a name on each further line.
#pragma once

#include "base/Disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

std::filesystem::path CategoryListPath(const Folders& folders);

struct CategoryList {
    FileText::State state = FileText::State::Absent;
    std::error_code reason; // unless whole
    std::string bytes;
    std::vector<std::string> names; // in file order; without empty lines, repetitions and "Alles"
};

/// The names of the list, at most MaxRows. A first line that is no number counts as a name.
CategoryList ReadCategoryNames(const Disk& disk);

/// Why the list must not be changed, one line for the user: it could not be read, or has not as
/// many names as its first line says and may be damaged. Empty if all is well.
std::string CategoryListFault(const CategoryList& list);

/// A list without a fault, with a further name or without one, and with the right number on its
/// first line. All other lines stay.
CategoryList WithCategory(const CategoryList& list, std::string_view name);
CategoryList WithoutCategory(const CategoryList& list, std::string_view name);

} // namespace emporium
