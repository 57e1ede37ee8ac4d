#include "itemeditor/ItemForm.h"

#include "base/Ansi.h"
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
    } cases[] = {
        {'0', "", 0, true},     {'9', "-1,5", 0, true}, {'/', "", 0, false},
        {':', "", 0, false},    {'-', "", 0, true},     {'+', "5", 0, true},
        {'-', "5", 1, false},   {'+', "-5", 0, false},  {'-', "5+", 0, false},
        {',', "", 0, false},    {',', "12", 0, false},  {',', "12", 2, true},
        {'.', "12", 1, true},   {'.', "1,2", 3, false}, {',', "1.2", 1, false},
        {',', "1,2", 1, false}, {',', "-", 1, true},    {'\b', "1,2", 3, true},
        {' ', "1", 1, false},   {'e', "1", 1, false},   {"²"_ansi[0], "1", 1, false},
        {'\t', "1", 1, false},  {'\0', "1", 1, false},  {"–"_ansi[0], "", 0, false},
    };
    for (const auto& c : cases) {
        for (const ItemText field : {WeightText, PriceText})
            EXPECT_EQ(FilterItemKey(field, c.key, c.text, c.caret), c.passes)
                << c.key << " into " << c.text << " at " << c.caret;
        for (const ItemText field : {NameText, DescriptionText})
            EXPECT_TRUE(FilterItemKey(field, c.key, c.text, c.caret));
    }
}

TEST(ItemForm, PastedTextEntersAsIfTyped) {
    const struct {
        std::string_view pasted, text;
        std::size_t caret;
        std::string_view entered;
    } cases[] = {
        {"12,5 Unzen", "", 0, "12,5"}, {"1.234,50", "", 0, "1.23450"},
        {"--5-", "", 0, "-5"},         {",5", "", 0, "5"},
        {",5", "1", 1, ",5"},          {"5,", "12", 0, "5,"},
        {"-5,5", "7,2", 0, "-55"},     {"+3", "-3", 0, "3"},
        {"zwei", "1", 1, ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FilterItemPaste(WeightText, c.pasted, std::string(c.text), c.caret), c.entered)
            << c.pasted;
        EXPECT_EQ(FilterItemPaste(NameText, c.pasted, std::string(c.text), c.caret), c.pasted);
    }
}

TEST(ItemForm, MarksThatAreNoneLeaveTheirLists) {
    constexpr int before = 2; // "3 - ..." and "Heller"
    const struct {
        std::string nameLine, priceLine, name, price;
        int wert, unit;
    } cases[] = {
        {"Dolch22", "12S", "Dolch2", "12", 1, 1}, {"A1", "-0,5D", "A", "-0,5", 0, 0},
        {"Axt5", "7P", "Axt", "7", 4, 3},         {"Axt0", "7d", "Axt", "7", before, before},
        {"Axt6", "7", "Axt", "", before, before}, {"Axt-", "7 ", "Axt", "7", before, before},
        {"", "", "", "", before, before},
    };
    EditorAtWork world;
    for (const auto& c : cases) {
        ItemEditor editor;
        editor.Items = {{c.nameLine, "", c.priceLine, "", ""}};
        editor.cmbItemWert.Select(before);
        editor.cmbItemPreis.Select(before);
        ShowItemInForm(editor, world.script.platform, world.program.folders, 0);
        EXPECT_EQ(editor.txtItem[NameText].text, c.name);
        EXPECT_EQ(editor.txtItem[PriceText].text, c.price);
        EXPECT_EQ(editor.cmbItemWert.Selection(), c.wert) << c.nameLine;
        EXPECT_EQ(editor.cmbItemPreis.Selection(), c.unit) << c.priceLine;
        EXPECT_EQ(editor.cmdItemSave.enabled, !c.name.empty() && !c.price.empty());
    }
}

TEST(ItemForm, SavingNeedsNamePriceAndWertOnly) {
    EditorAtWork world;
    ItemEditor& editor = world.editor;
    world.Fill({"-", "5", "D", "d", "BO|"});
    EditItemText(editor, NameText, "A");
    EditItemText(editor, PriceText, "-");
    EXPECT_FALSE(editor.cmdItemSave.enabled);
    ChooseItemWert(editor, 4);
    EXPECT_TRUE(editor.cmdItemSave.enabled);
    for (const ItemText field : {NameText, PriceText, WeightText, DescriptionText}) {
        EditItemText(editor, field, "");
        EXPECT_EQ(editor.cmdItemSave.enabled, field == WeightText || field == DescriptionText);
        EditItemText(editor, field, "5");
        EXPECT_TRUE(editor.cmdItemSave.enabled);
    }
}

TEST(ItemForm, ANewItemBeginsEmptyBesideTheChosenRow) {
    EditorAtWork world;
    int focused = 0;
    world.script.platform.FocusItemName = [&focused] { ++focused; };
    world.View("Kleidung");
    world.Open("Zopf");
    world.FormCategory("Abakus");
    StartNewItem(world.editor, world.script.platform);
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(RecordOfForm(world.editor), ItemRecord());
    EXPECT_EQ(world.editor.lstRegionen.Entries().size(), 20U);
    EXPECT_FALSE(world.editor.EditingExisting);
    EXPECT_FALSE(world.editor.cmdItemSave.enabled);
    EXPECT_EQ(world.editor.CurrentItemRow, 3);
    EXPECT_EQ(world.editor.cmbItemKategorien.Text(), "Abakus");
}

} // namespace
} // namespace emporium::test
