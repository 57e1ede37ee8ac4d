// The names of the categories in both drop-down lists: that of the view and that of the form.
#pragma once

#include "base/Disk.h"
#include "itemeditor/ItemEditor.h"

#include <string>
#include <vector>

namespace emporium {

/// Shows the names in both lists; an entry that is chosen stays so if it is still there.
void SetCategoryNames(ItemEditor& editor, const std::vector<std::string>& names);

/// Reads the category list into both lists; start-up only. Adds to `faults` what could not be read.
void ReadCategoryList(ItemEditor& editor, const Disk& disk, std::vector<std::string>& faults);

} // namespace emporium
