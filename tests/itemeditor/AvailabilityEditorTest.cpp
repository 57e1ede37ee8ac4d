#include "itemeditor/AvailabilityEditor.h"

#include "base/Ansi.h"
#include "itemeditor/ItemForm.h"
#include "regions/Availability.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace emporium::test {
namespace {

using Codes = std::vector<std::string>;

constexpr std::string_view Full =
    "BO|EL|FI|GA|HA|KH|LF|MA|MH|MO|NO|OR|PU|SÜ|TH|TO|WA|WE|ZW|ZY|"_ansi;

class AvailabilityEditor : public testing::Test {
protected:
    AvailabilityEditor() {
        std::string regions;
        for (const std::string_view code : AlphabeticalRegionCodes())
            regions.append("[").append(code).append("]\r\nDesc=Land ").append(code).append("\r\n");
        program.Write("Atlas/Regionen.dat", regions);
    }

    void Show(std::string_view availability) {
        ShowAvailability(editor, script.platform, program.folders, availability);
    }

    void Select(std::string_view code) {
        const auto& codes = editor.lstRegionen.Entries();
        const auto place = std::find(codes.begin(), codes.end(), code) - codes.begin();
        SelectRegion(editor, script.platform, program.folders, static_cast<int>(place));
    }

    std::string Chosen() const { return RecordOfForm(editor)[AvailabilityField]; }

    ProgramFolder program;
    ScriptedPlatform script;
    ItemEditor editor;
};

TEST_F(AvailabilityEditor, ShowsTheRegionsOfAStringAndNamesTheLastOneWalked) {
    std::string reversed;
    for (std::size_t i = Full.size(); i > 0; i -= 3)
        reversed += Full.substr(i - 3, 3);
    const struct {
        std::string shown;
        std::string_view chosen, label;
    } cases[] = {
        {"", "", "-"},
        {"BO|GA|", "BO|GA|", "Land ZY"}, // the empty piece at the end walks all that is left
        {"GA|BO|", "BO|GA|", "Land ZY"},
        {"BO|GA", "BO|GA|", "Land GA"},
        {std::string("SÜ|"_ansi), "SÜ|"_ansi, "Land ZY"},
        {"ZY|", "ZY|", "Land ZW"},
        {"XX|bo|BO|BO|B|", "BO|", "Land ZY"},
        {"|", "", "Land ZY"},
        {std::string(Full), Full, "Land ZY"},
        {reversed, Full, "Land BO"},
    };
    for (const auto& c : cases) {
        editor.lblRegionen.caption = "-";
        Show("TO|WA|");
        editor.lblRegionen.caption = "-";
        Show(c.shown);
        EXPECT_EQ(Chosen(), c.chosen) << c.shown;
        EXPECT_EQ(editor.lblRegionen.caption, c.label) << c.shown;
        Codes all = editor.lstRegionen.Entries();
        all.insert(all.end(), editor.lstVerfügbar.Entries().begin(),
                   editor.lstVerfügbar.Entries().end());
        std::sort(all.begin(), all.end());
        EXPECT_EQ(BuildAvailability(all), Full) << c.shown;
    }
}

TEST_F(AvailabilityEditor, AllRegionsByAnyRoadGiveTheFullString) {
    MoveAllRegionsIn(editor, script.platform, program.folders);
    EXPECT_EQ(Chosen(), Full);
    EXPECT_EQ(editor.lblRegionen.caption, "Land ZY");
    editor.lblRegionen.caption = "stays";
    MoveAllRegionsIn(editor, script.platform, program.folders);
    ReturnAllRegions(editor);
    ReturnAllRegions(editor);
    EXPECT_EQ(Chosen(), "");
    EXPECT_EQ(editor.lblRegionen.caption, "stays");
    for (std::size_t i = 1; i < RegionCodes.size(); ++i) { // in another order than the sorted one
        Select(RegionCodes[i]);
        EXPECT_EQ(editor.lblRegionen.caption, std::string("Land ").append(RegionCodes[i]));
        MoveRegionIn(editor);
    }
    EXPECT_EQ(Chosen(), Full);
    Show("BO|ZY|");
    MoveAllRegionsIn(editor, script.platform, program.folders);
    EXPECT_EQ(Chosen(), Full);
    EXPECT_EQ(editor.lblRegionen.caption, "Land ZW");
}

TEST_F(AvailabilityEditor, OnlyASelectedRegionMovesAndOnlyOnce) {
    MoveRegionIn(editor);
    MoveRegionOut(editor);
    EXPECT_EQ(Chosen(), "");
    Select("TH");
    MoveRegionIn(editor);
    EXPECT_EQ(editor.lstRegionen.Selection(), -1);
    MoveRegionIn(editor);
    Select("SÜ"_ansi);
    MoveRegionIn(editor);
    EXPECT_EQ(Chosen(), "SÜ|TH|"_ansi);
    MoveRegionOut(editor);
    EXPECT_EQ(Chosen(), "SÜ|TH|"_ansi) << "what was moved in is not selected";
    editor.lstVerfügbar.Select(1);
    MoveRegionOut(editor);
    MoveRegionOut(editor);
    EXPECT_EQ(Chosen(), "SÜ|"_ansi);
    EXPECT_EQ(editor.lblRegionen.caption, std::string("Land SÜ"_ansi)) << "only lstRegionen names";
}

} // namespace
} // namespace emporium::test
