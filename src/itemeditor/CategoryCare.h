// Creating a category and deleting one.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

namespace emporium {

/// Asks for a name until it can be used, and creates an empty category of that name. The view
/// stays. A category whose file can't be written does not enter the lists. What another program has
/// put into the list file or taken out enters or leaves the lists as well; a list file with a fault
/// is not changed, and a missing one is made anew after a question.
void NewCategory(ItemEditor& editor, const Platform& platform);

/// Deletes the chosen category, after a question. It must be empty and not a fixed one, which is
/// what enables the button. A file that could not be read whole, or that is no longer empty, is
/// refused with a box, and so is a list file with a fault. If the files can't be written nothing
/// changes.
void DeleteCategory(ItemEditor& editor, const Platform& platform);

} // namespace emporium
