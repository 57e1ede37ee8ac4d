// The items of the chosen view on paper, as one table in the order of the item list.
#pragma once

#include "itemeditor/ItemEditor.h"

#include <string>

namespace emporium {

/// Appends the page to the document.
void WriteItemList(const ItemEditor& editor, std::string& document);

} // namespace emporium
