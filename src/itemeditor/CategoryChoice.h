// Which records are on show: the view of one category, or of all of them.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

#include <string_view>

namespace emporium {

/// Shows the names in both drop-down lists; an entry that is chosen stays so if it is still there.
void SetCategoryNames(ItemEditor& editor, const std::vector<std::string>& names);

/// Empties the view; nothing of the form.
void ResetView(ItemEditor& editor);

/// Reads the category list into both drop-down lists; start-up only. Adds to
/// `faults` what could not be read.
void ReadCategoryList(ItemEditor& editor, const Disk& disk, std::vector<std::string>& faults);

/// The user picks an entry of cmbKategorien: its records become the view. What could not be read
/// is told in one box; such a file is shown as far as it can be and never written.
void ChooseCategory(ItemEditor& editor, const Platform& platform, int index);

/// Reads the records of the chosen entry into the view, see ChooseCategory.
void LoadItems(ItemEditor& editor, const Platform& platform);

/// Reads the view's files again because another program changed one. What the form holds stays; it
/// belongs to the same record as before if there still is one, and is a new item otherwise; no row
/// is chosen then.
void ReloadItems(ItemEditor& editor, const Platform& platform);

/// Ties buttons to the view's having records.
void UpdateItemButtons(ItemEditor& editor);

/// The index of the view's file of that category, -1 if the view has none.
int ViewFileOf(const ItemEditor& editor, std::string_view category);

} // namespace emporium
