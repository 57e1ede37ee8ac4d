// The item list: its rows, their sort order, and the choice of a row.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

#include <string_view>

namespace emporium {

/// Columns of the item list.
enum ItemColumn { ItemNameColumn, ItemPriceColumn };

/// What the list shows for a record: the name without its Wert digit, or the price as stored.
std::string_view ItemCell(const RecordView& record, int column);

/// Shows all records of Items, in the sort order, from the chosen one on.
void FillItemList(ItemEditor& editor);

/// Adds the row of a record, at its sorted place. The record must have none yet.
void AddItemRow(ItemEditor& editor, int record);

/// Removes the row of a record that is no longer in Items, and closes the gap in the numbers. The
/// row that takes its place on the screen is chosen then, or the last one.
void DropItemRow(ItemEditor& editor, int record);

/// Brings the row of a changed record to its sorted place. The tool tip follows a new name.
void PlaceItemRow(ItemEditor& editor, int record);

/// A click on a column's header.
void SortItemList(ItemEditor& editor, int column);

/// The user picks the row of the record: its stored values fill the form.
void ChooseItemRow(ItemEditor& editor, const Platform& platform, int record);

/// The place of the chosen record among the rows, -1 if none is chosen.
int ChosenPlace(const ItemEditor& editor);

} // namespace emporium
