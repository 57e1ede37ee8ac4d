// The two lists of regions in the item form: where the item is made, and where not. Together they
// always hold each of the twenty codes once.
#pragma once

#include "base/Platform.h"
#include "itemeditor/ItemEditor.h"

#include <string_view>

namespace emporium {

/// Moves the selected region to the other list; nothing happens without a selection.
void MoveRegionIn(ItemEditor& editor);
void MoveRegionOut(ItemEditor& editor);

void MoveAllRegionsIn(ItemEditor& editor, const Platform& platform);
void ReturnAllRegions(ItemEditor& editor);

/// The selection in lstRegionen: the label below takes the region's long name.
void SelectRegion(ItemEditor& editor, const Platform& platform, int index);

/// The selection in lstVerfügbar.
void SelectAvailableRegion(ItemEditor& editor, int index);

/// Sets the lists to an availability string. Pieces that are no region are passed over.
void ShowAvailability(ItemEditor& editor, const Platform& platform, std::string_view availability);

} // namespace emporium
