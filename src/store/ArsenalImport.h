// The weapons and the armour of the sibling tool, which start-up adds to the three fixed
// categories. The import only ever adds; a name that is there already is left as it is.
#pragma once

#include "base/Disk.h"

#include <string>
#include <vector>

namespace emporium {

/// Adds what the fixed categories lack, in source order, with the Wert 1. A missing source is
/// passed over, a record that ends early ends its import. Each category file is written whole
/// or not at all. Adds to `faults` what could not be read or written.
void ImportArsenal(const Disk& disk, std::vector<std::string>& faults);

} // namespace emporium
