#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

TEST(ItemForm, NumbersTakeOneSignAtTheStartAndOneSeparatorBehindIt) {
    const struct {
        char key;
        std::string_view text;
        std::size_t caret;
        bool passes;
    } cases[] = {{'0', "", 0, true},     {'9', "-1,5", 0, true}, {'/', "", 0, false},
                 {':', "", 0, false},    {'-', "", 0, true},     {'+', "5", 0, true},
                 {'-', "5", 1, false},   {'+', "-5", 0, false},  {'-', "5+", 0, false},
                 {',', "", 0, false},    {',', "12", 0, false},  {',', "12", 2, true},
                 {'.', "12", 1, true},   {'.', "1,2", 3, false}, {',', "1.2", 1, false},
                 {',', "1,2", 1, false}, {',', "-", 1, true},    {'\b', "1,2", 3, true},
                 {' ', "1", 1, false},   {'e', "1", 1, false},   {"²"_ansi[0], "1", 1, false}};
    for (const auto& c : cases) {
        for (const ItemText field : {WeightText, PriceText})
            EXPECT_EQ(FilterItemKey(field, c.key, c.text, c.caret), c.passes)
                << c.key << " into " << c.text << " at " << c.caret;
        EXPECT_TRUE(FilterItemKey(NameText, c.key, c.text, c.caret));
    }
    for (const ItemText field : {WeightText, PriceText}) {
        EXPECT_EQ(FilterItemPaste(field, " 2,5\t", "1", 1, 0), "2,5");
        EXPECT_EQ(FilterItemPaste(field, "2,5", "1,5", 0, 3), "2,5") << "in its place";
        EXPECT_EQ(FilterItemPaste(field, "-2,", "1,5", 0, 1), "");
        EXPECT_EQ(FilterItemPaste(field, "2x", "", 0, 0), "");
    }
    EXPECT_EQ(FilterItemPaste(NameText, " 2x ", "-1", 1, 0), " 2x ");
}

TEST(ItemForm, ALineWithoutItsMarkIsShownWholeAndWaitsForAChoice) {
    EditorAtWork world;
    const std::string sound = Lines({"Dolch2", "", "3S", "", ""});
    world.program.Write("Emporium/Abakus.dat", sound + "Schwert\r\n\r\n12\r\n\r\nBO|");
    world.script.ExpectMessage("Abakus.dat: Datensätze ohne"_ansi);
    world.View("Abakus");
    world.Open(0);
    world.Open(1);
    EXPECT_FALSE(world.editor.cmdItemSave.enabled);
    ChooseItemWert(world.editor, 0);
    EXPECT_TRUE(world.editor.cmdItemSave.enabled);
    world.script.ExpectMessage("Bitte wählt zum Preis"_ansi);
    world.Save();
    world.editor.cmbItemPreis.Select(0);
    world.Save();
    EXPECT_EQ(world.File("Abakus"), sound + Lines({"Schwert1", "", "12D", "", "BO|"}));
}

TEST(AvailabilityEditor, ShowsTheRegionsOfAStringAndNamesTheLastOneWalked) {
    EditorAtWork world;
    const auto& platform = world.script.platform;
    world.program.Write("Atlas/Regionen.dat", "[ZY]\nDesc=Land ZY\n[ZW]\nDesc=Land ZW\n[GA]\n"
                                              "Desc=Land GA\n");
    const struct {
        std::string_view shown, chosen, label;
    } cases[] = {{"", "", "-"},
                 {"BO|GA|", "BO|GA|", "Land ZY"}, // the empty piece at the end walks all the rest
                 {"GA|BO|", "BO|GA|", "Land ZY"},
                 {"XX|bo|BO|BO|B|", "BO|", "Land ZY"},
                 {"|", "", "Land ZY"},
                 {"ZY|SÜ|"_ansi, "SÜ|ZY|"_ansi, "Land ZW"},
                 {"BO|GA", "BO|GA|", "Land GA"}};
    ItemEditor editor;
    for (const auto& c : cases) {
        ShowAvailability(editor, platform, "TO|WA|");
        editor.lblRegionen.caption = "-";
        ShowAvailability(editor, platform, c.shown);
        EXPECT_EQ(RecordOfForm(editor)[AvailabilityField], c.chosen) << c.shown;
        EXPECT_EQ(editor.lblRegionen.caption, c.label) << c.shown;
    }
    MoveAllRegionsIn(editor, platform);
    MoveAllRegionsIn(editor, platform); // there are no more
    EXPECT_EQ(editor.lblRegionen.caption, "Land ZY");
    EXPECT_EQ(RecordOfForm(editor)[AvailabilityField],
              "BO|EL|FI|GA|HA|KH|LF|MA|MH|MO|NO|OR|PU|SÜ|TH|TO|WA|WE|ZW|ZY|"_ansi);
    SelectAvailableRegion(editor, 1);
    MoveRegionOut(editor);
    MoveRegionOut(editor);
    EXPECT_TRUE(RecordOfForm(editor)[AvailabilityField].starts_with("BO|FI|"));
    EXPECT_EQ(editor.lstRegionen.Entries(), std::vector<std::string>{"EL"}) << "moves once";
    SelectRegion(editor, platform, 0);
    EXPECT_NE(editor.lblRegionen.caption, "Land ZY");
    SelectAvailableRegion(editor, 0);
    MoveRegionOut(editor);
    EXPECT_EQ(editor.lstRegionen.Text(), "EL") << "stays chosen behind BO";
}

} // namespace
} // namespace emporium::test
