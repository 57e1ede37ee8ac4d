// The files of the fixed categories had longer names once; start-up brings them to the present
// ones.
#pragma once

#include "base/Disk.h"

#include <string>
#include <vector>

namespace emporium {

/// Brings the files to their present names, over files of that name. Adds to `faults` what
/// failed; both files stand as before then, or the next start makes up for it.
void RenameOldCategoryFiles(const Disk& disk, std::vector<std::string>& faults);

} // namespace emporium
