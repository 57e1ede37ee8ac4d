// Which records are on show: the view of one category, or of all of them.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

namespace emporium {

/// Empties the view; nothing of the form.
void ResetView(ItemEditor& editor);

/// The user picks an entry of cmbKategorien: its records become the view. What could not be read
/// is told in one box; such a file is shown as far as it can be and never written.
void ChooseCategory(ItemEditor& editor, const Platform& platform, int index);

/// Reads the records of the chosen entry into the view, see ChooseCategory.
void LoadItems(ItemEditor& editor, const Platform& platform);

/// Reads the view's files again because another program changed one. What the form holds stays; it
/// belongs to the same record as before if there still is one, and is a new item otherwise; no row
/// is chosen then.
void ReloadItems(ItemEditor& editor, const Platform& platform);

} // namespace emporium
