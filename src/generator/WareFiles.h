// The files of the categories that a shop type names.
#pragma once

#include "base/Disk.h"
#include "store/ItemRecord.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace emporium {

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
