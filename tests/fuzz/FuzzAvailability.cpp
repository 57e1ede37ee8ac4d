// Any bytes as an item's availability: the form's two lists hold every region once, whatever the
// string says, and show what the string names.
#include "Fuzz.h"

#include "itemeditor/AvailabilityEditor.h"
#include "regions/AtlasEngine.h"
#include "regions/Availability.h"
#include "text/GermanOrder.h"

#include <algorithm>
#include <set>

namespace emporium::fuzz {
namespace {

const Folders TheFolders = InitFolders("/fuzz");

std::string Made(const ItemEditor& editor) {
    return BuildAvailability(editor.lstVerfügbar.Entries());
}

void CheckLists(const ItemEditor& editor) {
    std::multiset<std::string_view> regions;
    for (const ChoiceList* list : {&editor.lstRegionen, &editor.lstVerfügbar}) {
        regions.insert(list->Entries().begin(), list->Entries().end());
        Expect(std::is_sorted(list->Entries().begin(), list->Entries().end(), GermanLess),
               "alphabetical order");
        Expect(list->Selection() < std::ssize(list->Entries()), "the selection is in the list");
    }
    Expect(regions == std::multiset<std::string_view>(RegionCodes.begin() + 1, RegionCodes.end()),
           "every region once");
}

void CheckShown(const ItemEditor& editor, std::string_view availability) {
    const auto pieces = AvailabilityCodes(availability);
    const std::set<std::string_view> named(pieces.begin(), pieces.end());
    std::string expected;
    for (const std::string_view code : AlphabeticalRegionCodes())
        if (named.count(code) > 0)
            expected.append(code).append("|");
    Expect(Made(editor) == expected, "the regions that the string names");
}

void CheckPieces(std::string_view availability) {
    const auto pieces = AvailabilityCodes(availability);
    std::string built = BuildAvailability({pieces.begin(), pieces.end()});
    if (!availability.empty() && !availability.ends_with('|'))
        built.pop_back();
    Expect(built == availability, "the pieces are all of the string");
    const std::string text = AvailabilityText(availability);
    Expect(FormOf(availability) != AvailabilityForm::Codes || text == availability, "a short text");
    RegionTable table = RegionInit();
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const auto distance = RegionDistance(table, pieces[i - 1], pieces[i]);
        Expect(!distance || (*distance >= 1 && *distance <= 2), "a distance of the table");
    }
}

} // namespace
} // namespace emporium::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace emporium;
    using namespace emporium::fuzz;
    const std::string_view availability = TextOf(data, size);
    CheckPieces(availability);
    Disk disk = {
        {(TheFolders.DataFolder / "Atlas" / "Regionen.dat").string(), "[BO]\r\nDesc=Bornland\r\n"}};
    Platform platform;
    platform.files = FilesOn(disk);
    ItemEditor editor;
    ShowAvailability(editor, platform, TheFolders, availability);
    CheckLists(editor);
    CheckShown(editor, availability);
    const std::string shown = Made(editor);
    ShowAvailability(editor, platform, TheFolders, shown);
    Expect(Made(editor) == shown, "what the form made is shown as it is");
    return 0;
}
