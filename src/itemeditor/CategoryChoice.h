// The user's handle on the item store: choosing a category, or all of them, as the view; creating a
// category and deleting one.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

#include <string_view>

namespace emporium {

/// Reads the category list into CategoryNames and both drop-down lists; start-up only. Adds to
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

/// Carries out what an earlier write announced but could not finish. Precedes every reading of what
/// is to be rewritten. False, after a box, if it fails again.
bool ReadyToWrite(const Platform& platform);

/// Ties buttons to the view's having records.
void UpdateItemButtons(ItemEditor& editor);

/// Asks for a name until it can be used, and creates an empty category of that name. The view
/// stays. A category whose file can't be written does not enter the lists. What another program has
/// put into the list file or taken out enters or leaves the lists as well; a list file with a fault
/// is not changed.
void NewCategory(ItemEditor& editor, const Platform& platform);

/// Deletes the chosen category, after a question. It must be empty and not a fixed one, which is
/// what enables the button. A file that could not be read whole, or that is no longer empty, is
/// refused with a box, and so is a list file with a fault. If the files can't be written nothing
/// changes.
void DeleteCategory(ItemEditor& editor, const Platform& platform);

/// The index of the view's file of that category, -1 if the view has none.
int ViewFileOf(const ItemEditor& editor, std::string_view category);

} // namespace emporium
