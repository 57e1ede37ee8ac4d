#include "itemeditor/CategoryChoice.h"

#include "base/Ansi.h"
#include "itemeditor/ItemForm.h"
#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

void New(EditorAtWork& world) {
    NewCategory(world.editor, world.script.platform, world.program.folders);
}

void DeleteIt(EditorAtWork& world, bool answer) {
    world.script.ExpectYesNo(DeleteCategoryQuestion, answer);
    DeleteCategory(world.editor, world.script.platform, world.program.folders);
}

TEST(CategoryChoice, ButtonsFollowTheView) {
    EditorAtWork world;
    ItemEditor& editor = world.editor;
    EXPECT_FALSE(editor.lvGegenstände.visible || editor.cmdItemNeu.visible ||
                 editor.cmdItemDelete.visible || editor.cmdItemSave.visible);
    EXPECT_FALSE(editor.cmdItemSave.enabled || editor.cmdKategorieDelete.enabled ||
                 editor.cmdListeDrucken.enabled);
    const std::map<std::string_view, int> items = {
        {"Kleidung", 4}, {"Abakus", 0}, {"Fernwaffen", 0}, {"Alles", 8}, {"Rüstungen"_ansi, 1}};
    for (const auto& [view, count] : items) {
        SCOPED_TRACE(view);
        world.View("Kleidung");
        world.Open("Zopf");
        world.View(view);
        EXPECT_EQ(editor.ItemCount(), count);
        EXPECT_EQ(editor.CurrentItemRow, count > 0 ? 0 : -1);
        for (const Button* button :
             {&editor.cmdItemDelete, &editor.cmdListeDrucken, &editor.cmdItemHin})
            EXPECT_EQ(button->enabled, count > 0);
        EXPECT_EQ(editor.cmdKategorieDelete.enabled, view == "Abakus");
        EXPECT_FALSE(editor.cmdItemSave.enabled || editor.EditingExisting);
        EXPECT_EQ(RecordOfForm(editor), ItemRecord());
        EXPECT_EQ(editor.cmbItemKategorien.Text(), view);
        EXPECT_EQ(editor.lvGegenstände.toolTip, "") << "no row has been picked";
    }
    EXPECT_TRUE(editor.lvGegenstände.visible && editor.cmdItemNeu.visible &&
                editor.cmdItemDelete.visible && editor.cmdItemSave.visible);
    world.program.Write("Emporium/ItemKategorien.dat", Lines({" 1 ", "Fernwaffen"}));
    world.View("Alles");
    EXPECT_FALSE(editor.cmdKategorieDelete.enabled) << "not even empty";
}

TEST(CategoryChoice, ANewCategoryIsAskedForUntilItsNameIsFree) {
    EditorAtWork world;
    world.View("Kleidung");
    world.Open("Zopf");
    const auto files = world.Files();
    const auto state = world.State();
    world.script.ExpectText(NamePrompt, "");
    New(world);
    for (const std::string_view last : {""_ansi, "Ämter"_ansi}) {
        EXPECT_EQ(world.Files(), files);
        EXPECT_EQ(world.State(), state) << "a cancelled name changes nothing";
        for (const std::string_view refused : {"Alles", "Kleidung", "kleidung", "a/b", "CON"}) {
            world.script.ExpectText(NamePrompt, refused);
            world.script.ExpectMessage("");
        }
        world.script.ExpectText(NamePrompt, last);
        New(world);
    }
    EXPECT_EQ(world.editor.cmbKategorien.Entries()[2], "Ämter"_ansi);
    EXPECT_EQ(world.editor.cmbItemKategorien.Entries(), world.editor.cmbKategorien.Entries());
    EXPECT_EQ(world.editor.cmbKategorien.Text(), "Kleidung") << "the view stays";
    EXPECT_EQ(world.editor.cmbItemKategorien.Text(), "Kleidung");
    EXPECT_EQ(world.editor.txtItem[NameText].text, "Zopf");
    EXPECT_EQ(world.File("Ämter"_ansi), "");
    EXPECT_EQ(world.File("ItemKategorien"),
              Lines({" 7 ", "Nahkampfwaffen", "Fernwaffen", "Rüstungen"_ansi, "Kleidung",
                     "Öllampen"_ansi, "Abakus", "Ämter"_ansi}));
}

TEST(CategoryChoice, ADeletedCategoryIsGoneEverywhere) {
    EditorAtWork world;
    world.View("Abakus");
    const auto state = world.State();
    DeleteIt(world, false);
    EXPECT_EQ(world.State(), state);
    EXPECT_EQ(world.File("Abakus"), "");

    world.FormCategory("Kleidung"); // chosen by hand since the view was loaded
    DeleteIt(world, true);
    EXPECT_EQ(world.File("Abakus"), "(absent)");
    EXPECT_EQ(world.editor.cmbKategorien.Text(), "");
    EXPECT_EQ(world.editor.cmbItemKategorien.Text(), "");
    EXPECT_EQ(world.editor.cmbKategorien.Entries(), world.editor.cmbItemKategorien.Entries());
    EXPECT_FALSE(world.editor.cmdKategorieDelete.enabled);
    EXPECT_TRUE(world.editor.lvGegenstände.visible);

    world.script.ExpectText(NamePrompt, "Zelte");
    New(world);
    EXPECT_EQ(world.File("ItemKategorien"),
              Lines({" 6 ", "Nahkampfwaffen", "Fernwaffen", "Rüstungen"_ansi, "Kleidung",
                     "Öllampen"_ansi, "Zelte"}));
    EXPECT_EQ(CategoryListText(world.editor.CategoryNames), world.File("ItemKategorien"));
}

TEST(CategoryChoice, AFailureChangesNothing) {
    const auto view = [](EditorAtWork& world) { world.View("Abakus"); };
    ExpectAllOrNothing(view, [](EditorAtWork& world) {
        world.script.ExpectText(NamePrompt, "Zelte");
        New(world);
    });
    ExpectAllOrNothing(view, [](EditorAtWork& world) { DeleteIt(world, true); });
}

TEST(CategoryChoice, WhatIsOddIsToldInOneBoxAndShownAsFarAsItGoes) {
    EditorAtWork world;
    const std::string zelte = "Stange1\n9\n3H\n\n\nPlane2\n\n\nleicht\n";
    std::string list = world.File("ItemKategorien");
    list.replace(1, 1, "40").append("\r\nZelte\r\nKleidung\r\nGeist\nAlles");
    world.program.Write("Emporium/ItemKategorien.dat", list);
    world.program.Write("Emporium/Zelte.dat", zelte);
    world.program.Write("Emporium/Abakus.dat", Lines({"Kugel2", "", "", "", "", "Dr", "", ""}));
    world.ReadList();
    std::vector<std::string> told;
    world.script.platform.ShowMessage = [&told](std::string_view text) { told.emplace_back(text); };
    world.View("Alles");
    EXPECT_EQ(world.editor.ItemCount(), 10) << "8, the first of Zelte and the first of Abakus";
    ASSERT_EQ(told.size(), 1U);
    for (const std::string_view fault : {"\nZelte.dat: Der letzte", "\nAbakus.dat: Der letzte",
                                         "\nAbakus.dat: 1 Datens", "\nGeist.dat: Die Datei fehlt."})
        EXPECT_NE(told[0].find(fault), std::string::npos) << fault << " in " << told[0];
    EXPECT_EQ(world.File("ItemKategorien"), list) << "reading corrects nothing";

    world.program.Write("Emporium/Zelte.dat", "Stange1\n9\n");
    world.View("Zelte");
    EXPECT_EQ(told.size(), 2U);
    DeleteCategory(world.editor, world.script.platform, world.program.folders);
    EXPECT_EQ(told.size(), 3U) << "what could not be read is not deleted as if it were empty";
    EXPECT_EQ(world.File("Zelte"), "Stange1\n9\n");
}

TEST(CategoryChoice, AViewTakesAsManyRowsAsTheirNumbersReach) {
    EditorAtWork world;
    std::string bytes;
    for (int i = 0; i < MaxRows; ++i)
        bytes += "Ding1\r\n\r\n1H\r\n\r\n\r\n";
    world.program.Write("Emporium/Abakus.dat", bytes);
    world.View("Abakus");
    EXPECT_EQ(world.editor.ItemCount(), MaxRows);
    world.Fill({"Neu1", "", "1D", "", ""});
    world.script.ExpectMessage("Die Ansicht ist voll");
    world.Save();
    world.Delete(true);
    bytes.resize(bytes.size() - 17);
    EXPECT_TRUE(world.File("Abakus") == bytes);
    world.Fill({"Neu1", "", "1D", "", ""});
    world.Save();
    bytes += Lines({"Neu1", "", "1D", "", ""});
    EXPECT_TRUE(world.File("Abakus") == bytes);

    const std::string told = "Nicht alles ist gelungen:\n\nAbakus.dat: Die Ansicht";
    world.script.ExpectMessage(told);
    world.View("Alles");
    EXPECT_EQ(world.editor.ItemCount(), MaxRows);
    world.script.ExpectMessage("Abakus.dat: ");
    world.Open(MaxRows - 1);
    EditItemText(world.editor, NameText, "anders");
    world.Save();
    world.program.Write("Emporium/Abakus.dat", bytes += "Ding1\r\n\r\n1H\r\n\r\n\r\n");
    world.script.ExpectMessage(told);
    world.View("Abakus");
    world.script.ExpectYesNo(DeleteQuestion, true);
    world.script.ExpectMessage("Abakus.dat: ");
    world.Delete();
    EXPECT_TRUE(world.File("Abakus") == bytes);
}

} // namespace
} // namespace emporium::test
