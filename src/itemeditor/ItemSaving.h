// Turning the item form into stored data: a new record, a changed one, one that moves to another
// category, or a deletion. The files are written first; only what stands on disk then enters the
// records and the list. If a file can't be written, a box says so and everything stays. If another
// program changed the file meanwhile, a box asks whether to show its new state or to go on.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

namespace emporium {

/// Saves the form: a new item, or the one that is being edited. Refused with a box if no unit is
/// chosen, or if a new item has no category to go to.
void SaveItem(ItemEditor& editor, const Platform& platform);

/// Deletes the chosen item, after a question. If none is chosen, a box says so.
void ConfirmDeleteItem(ItemEditor& editor, const Platform& platform);

} // namespace emporium
