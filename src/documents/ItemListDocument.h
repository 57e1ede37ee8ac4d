// The items of the chosen view on paper, as one table in the order of the item list.
#pragma once

#include "itemeditor/ItemEditor.h"

#include <string>

namespace emporium {

void WriteItemList(const ItemEditor& editor, std::string& file);

} // namespace emporium
