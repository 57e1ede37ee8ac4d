// The item form: a scratch copy of one record. Nothing reaches the records before SaveItem.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

#include <string>
#include <string_view>

namespace emporium {

/// The fields of txtItem.
enum ItemText : std::size_t { NameText, WeightText, PriceText, DescriptionText };

/// Copies a record into the form. A unit or Wert that is none leaves its list as it was; a line
/// that lacks it is shown whole, and its list has no choice.
void ShowItemInForm(ItemEditor& editor, const Platform& platform, int row);

void ClearItemForm(ItemEditor& editor);

/// Begins a new item: an empty form with the focus on its name.
void StartNewItem(ItemEditor& editor, const Platform& platform);

/// The user has changed a text field.
void EditItemText(ItemEditor& editor, ItemText field, std::string text);

/// The user picks the category that a new item goes to, or an item moves to.
void ChooseItemCategory(ItemEditor& editor, int index);

/// The user picks a unit of the price.
void ChooseItemUnit(ItemEditor& editor, int index);

/// The user picks a Wert.
void ChooseItemWert(ItemEditor& editor, int index);

/// Saving needs a name, a price number and a Wert.
void UpdateSaveAvailability(ItemEditor& editor);

/// True if the typed character may enter the field. Weight and price number take digits, one sign
/// at the start and one separator behind it; the other fields take everything. `text` is the
/// field's text before, `caret` the place of the caret or the start of the selection, from 0.
bool FilterItemKey(ItemText field, char character, std::string_view text, std::size_t caret);

/// What of a pasted text enters the field: all of it or nothing, for a number that loses characters
/// becomes another one. Blanks around a number are dropped first. The first character replaces the
/// `replaced` ones from the caret on.
std::string FilterItemPaste(ItemText field, std::string_view pasted, std::string text,
                            std::size_t caret, std::size_t replaced);

/// The record that the form holds. Price and name line lack their closing mark as long as no unit
/// or Wert is chosen.
ItemRecord RecordOfForm(const ItemEditor& editor);

} // namespace emporium
