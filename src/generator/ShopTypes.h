// What the generator knows of shop types: two files that a user extends with a text editor.
#pragma once

#include "base/Disk.h"
#include "base/IniFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// The shop types in file order, an empty line as an empty type, at most MaxRows of them. Adds
/// to `faults` what could not be read, or that the file is empty; a missing one gives no types.
std::vector<std::string> ReadShopTypes(const Disk& disk, std::vector<std::string>& faults);

/// What the configuration tells of a type; nothing if it can't be read, which is added to
/// `faults`.
IniSection ReadTypeConfig(const Disk& disk, std::string_view shopType,
                          std::vector<std::string>& faults);

} // namespace emporium
