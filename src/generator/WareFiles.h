// The categories that a shop type names, and their files.
#pragma once

#include "base/Disk.h"
#include "base/IniFile.h"
#include "store/ItemRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace emporium {

/// How many categories the type names, the nearest limit for a number beyond 16 bits; nothing
/// if the file does not tell it or tells no number.
std::optional<std::int16_t> ReadWareCount(const IniSection& type);

/// The category of number n, from 1, empty if the type names none.
std::string ReadWareCategory(const IniSection& type, std::int16_t n);

class WareFiles {
public:
    /// Both must outlive this. Adds to `faults` what could not be read.
    WareFiles(const Disk& disk, std::vector<std::string>& faults) : disk_(disk), faults_(faults) {}

    /// The text of a category. It is read once, however often it is named. Empty for a name that
    /// leads to no file; that is no fault.
    SharedText Text(const std::string& name);

private:
    std::string Read(const std::string& name);

    const Disk& disk_;
    std::vector<std::string>& faults_;
    std::unordered_map<std::string, SharedText> texts_;
};

} // namespace emporium
