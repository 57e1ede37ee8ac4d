#include "itemeditor/AvailabilityEditor.h"

#include "regions/AtlasEngine.h"
#include "regions/Availability.h"

#include <algorithm>

namespace emporium {

namespace {

void MoveSelected(ChoiceList& from, ChoiceList& to) {
    if (from.Selection() < 0)
        return;
    to.Add(from.Text());
    from.RemoveSelected();
}

void ShowRegionName(ItemEditor& editor, const Platform& platform, std::string_view code) {
    editor.lblRegionen.caption = RegionDescription(platform.disk, code);
}

} // namespace

void MoveRegionIn(ItemEditor& editor) {
    MoveSelected(editor.lstRegionen, editor.lstVerfügbar);
}

void MoveRegionOut(ItemEditor& editor) {
    MoveSelected(editor.lstVerfügbar, editor.lstRegionen);
}

void MoveAllRegionsIn(ItemEditor& editor, const Platform& platform) {
    if (editor.lstRegionen.Entries().empty())
        return;
    ShowRegionName(editor, platform, editor.lstRegionen.Entries().back());
    while (!editor.lstRegionen.Entries().empty()) {
        editor.lstRegionen.Select(0);
        MoveSelected(editor.lstRegionen, editor.lstVerfügbar);
    }
}

void ReturnAllRegions(ItemEditor& editor) {
    while (!editor.lstVerfügbar.Entries().empty()) {
        editor.lstVerfügbar.Select(0);
        MoveRegionOut(editor);
    }
}

void SelectRegion(ItemEditor& editor, const Platform& platform, int index) {
    editor.lstRegionen.Select(index);
    ShowRegionName(editor, platform, editor.lstRegionen.Text());
}

void SelectAvailableRegion(ItemEditor& editor, int index) {
    editor.lstVerfügbar.Select(index);
}

void ShowAvailability(ItemEditor& editor, const Platform& platform, std::string_view availability) {
    ReturnAllRegions(editor);
    auto pieces = AvailabilityCodes(availability);
    if (availability.ends_with('|'))
        pieces.emplace_back(); // behind the last mark
    std::string walked;
    for (const std::string_view piece : pieces) {
        const auto& entries = editor.lstRegionen.Entries();
        if (entries.empty())
            break;
        // The search selects entry after entry and leaves the last one selected if it fails.
        const auto found = std::find(entries.begin(), entries.end(), piece);
        const bool isRegion = found != entries.end();
        editor.lstRegionen.Select(static_cast<int>(found - entries.begin()) - (isRegion ? 0 : 1));
        walked = editor.lstRegionen.Text();
        if (isRegion)
            MoveRegionIn(editor);
    }
    if (!walked.empty())
        ShowRegionName(editor, platform, walked);
}

} // namespace emporium
