// What start-up does to the three fixed categories: their files are brought from older names to the
// present ones, and weapons and armour of the sibling tool that they lack are added. The import
// only ever adds; a name that is there already is left as it is.
#pragma once

#include "base/Disk.h"
#include "base/Subs.h"

#include <string>
#include <vector>

namespace emporium {

/// Brings the files to their present names, over files of that name. Adds to `faults` what
/// failed; both files stand as before then.
void RenameOldCategoryFiles(const Disk& disk, std::vector<std::string>& faults);

/// Adds what the fixed categories lack, in source order, with the Wert 1. A missing source is
/// passed over, a record that ends early ends its import. Each category file is written whole
/// or not at all. Adds to `faults` what could not be read or written.
void ImportArsenal(const Disk& disk, std::vector<std::string>& faults);

} // namespace emporium
