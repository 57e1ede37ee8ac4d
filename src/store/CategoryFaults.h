// What the user is told of a category's file.
#pragma once

#include "store/CategoryFiles.h"

#include <string>
#include <string_view>
#include <vector>

namespace emporium {

/// What the user is told of a record that a category has no room for.
inline constexpr std::string_view CategoryIsFull =
    "Die Kategorie ist voll: Sie fasst höchstens 32767 Gegenstände."_ansi;

/// What the user is told of lines that are left over behind the last whole record.
inline constexpr std::string_view RecordIsCutOff =
    "Der letzte Datensatz ist nicht vollständig."_ansi;

/// The line that tells something of a category's file, with its name in front.
std::string CategoryLine(std::string_view name, std::string_view what);

/// What the user should know of the file, one line for each fault: missing, unreadable, cut
/// off, records whose name or price line lacks its mark. Empty if all is well.
std::vector<std::string> CategoryFaults(std::string_view name, const CategoryFile& file);

} // namespace emporium
