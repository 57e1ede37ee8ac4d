#include "itemeditor/ItemSaving.h"

#include "base/Ansi.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

const ItemRecord Hat = {"Hut2", "1,5", "12S", "Spitz", "BO|TH|"};
const ItemRecord Coat = {"mantel2", "-1.", "100D", std::string("Für \u0081 den Regen"_ansi),
                         std::string("SÜ|"_ansi)};
constexpr std::string_view AskForCategory = "Bitte wählt im Feld Kategorie"_ansi;

enum class Box { None, Yes, No };

// A way of saving the Hat: from a view, in place of the coat or as a new item, with a category in
// the form and perhaps the answer to a question; and the files that change.
struct Road {
    std::string_view view, open, formCategory;
    Box box;
    std::map<std::string, std::vector<ItemRecord>> added;
    std::optional<std::vector<ItemRecord>> coatBecomes;
};

const Road Roads[] = {
    {"Kleidung", "", "Kleidung", Box::None, {{"Kleidung", {Hat}}}, {}},
    {"Kleidung", "", "Fernwaffen", Box::None, {{"Kleidung", {Hat}}}, {}}, // new: not looked at
    {"Abakus", "", "Alles", Box::None, {{"Abakus", {Hat}}}, {}},
    {"Alles", "", "Nahkampfwaffen", Box::None, {{"Nahkampfwaffen", {Hat}}}, {}},
    {"Kleidung", "mantel", "Kleidung", Box::None, {}, {{Hat}}},
    {"Kleidung", "mantel", "Alles", Box::None, {}, {{Hat}}},
    {"Alles", "mantel", "Alles", Box::None, {}, {{Hat}}},
    {"Alles", "mantel", "Abakus", Box::None, {}, {{Hat}}}, // stays where it came from
    {"Kleidung", "mantel", "Abakus", Box::No, {}, {}},
    {"Kleidung", "mantel", "Abakus", Box::Yes, {{"Abakus", {Coat}}}, {{}}}, // as it is stored
    {"Kleidung", "mantel", "Nahkampfwaffen", Box::Yes, {{"Nahkampfwaffen", {Coat}}}, {{}}},
};

void Prepare(EditorAtWork& world, const Road& road) {
    world.View(road.view);
    if (!road.open.empty())
        world.Open(road.open);
    world.FormCategory(road.formCategory);
    world.Fill(Hat);
}

void Take(EditorAtWork& world, const Road& road) {
    if (road.box != Box::None)
        world.script.ExpectYesNo(MoveQuestion, road.box == Box::Yes);
    world.Save();
}

// Saves, and expects a box and that all stays as it was.
void ExpectRefusal(EditorAtWork& world, std::string_view message) {
    const auto files = world.Files();
    const auto state = world.State();
    world.script.ExpectMessage(message);
    world.Save();
    EXPECT_EQ(world.Files(), files) << message;
    EXPECT_EQ(world.State(), state) << message;
}

TEST(ItemSaving, EveryRoadChangesItsFilesAndEndsWithAnEmptyForm) {
    for (const Road& road : Roads) {
        EditorAtWork world;
        auto files = world.Files();
        for (const auto& [category, records] : road.added)
            files[category + ".dat"] += RecordLines(records);
        if (road.coatBecomes) {
            std::string& file = files["Kleidung.dat"];
            const std::string coat = RecordLines({Coat});
            file.replace(file.find(coat), coat.size(), RecordLines(*road.coatBecomes));
        }
        SCOPED_TRACE(std::string(road.view).append(" to ").append(road.formCategory));
        Prepare(world, road);
        const int row = world.editor.CurrentItemRow;
        Take(world, road);
        EXPECT_EQ(world.Files(), files);
        EXPECT_EQ(world.editor.CurrentItemRow, std::max(row, 0)) << "or the one that follows";
        EXPECT_EQ(RecordOfForm(world.editor), ItemRecord());
        EXPECT_FALSE(world.editor.EditingExisting || world.editor.cmdItemSave.enabled);
        EXPECT_EQ(world.editor.cmbItemKategorien.Text(), road.formCategory) << "asks again";
    }
}

TEST(ItemSaving, AFailureChangesNothingOnAnyRoad) {
    for (const Road& road : Roads)
        if (road.box != Box::No)
            ExpectAllOrNothing([&](EditorAtWork& world) { Prepare(world, road); },
                               [&](EditorAtWork& world) { Take(world, road); });
    for (const std::string_view view : {"Alles", "Kleidung"})
        ExpectAllOrNothing(
            [&](EditorAtWork& world) {
                world.View(view);
                world.Open("Zopf");
            },
            [](EditorAtWork& world) { world.Delete(true); });
}

TEST(ItemSaving, ANewItemWithoutAHomeWaitsForACategoryInTheForm) {
    EditorAtWork world;
    world.View("Alles");
    world.Fill(Hat);
    ExpectRefusal(world, AskForCategory);
    world.script.ExpectText(NamePrompt, "Zelte");
    NewCategory(world.editor, world.script.platform, world.program.folders);
    world.FormCategory("Zelte"); // made since the view was loaded
    world.Save();
    EXPECT_EQ(world.File("Zelte"), RecordLines({Hat}));

    world.View("Abakus");
    world.script.ExpectYesNo(DeleteCategoryQuestion, true);
    DeleteCategory(world.editor, world.script.platform, world.program.folders);
    world.Fill(Hat);
    ExpectRefusal(world, AskForCategory);
    world.FormCategory("Alles");
    ExpectRefusal(world, AskForCategory);
    world.FormCategory("Nahkampfwaffen");
    world.Save();
    EXPECT_TRUE(world.File("Nahkampfwaffen").ends_with(RecordLines({Hat})));
    EXPECT_EQ(world.editor.cmbKategorien.Text(), "Nahkampfwaffen") << "it is shown where it went";
    EXPECT_EQ(world.Rows(), "Dolch Hut");
    EXPECT_EQ(RecordOfForm(world.editor), ItemRecord());
}

TEST(ItemSaving, TheLastItemCanGoAndANewOneCome) {
    EditorAtWork world;
    world.Delete(); // nothing is chosen, nothing is asked
    world.View("Rüstungen"_ansi);
    world.Open("Helm");
    const auto state = world.State();
    world.Delete(false);
    EXPECT_EQ(world.State(), state) << "a No keeps what the form holds";
    world.Delete(true);
    EXPECT_EQ(world.File("Rüstungen"_ansi), "");
    EXPECT_EQ(world.editor.CurrentItemRow, -1);
    EXPECT_EQ(world.editor.lvGegenstände.toolTip, "") << "it named the row";
    EXPECT_FALSE(world.editor.cmdItemDelete.enabled || world.editor.cmdItemHin.enabled);
    world.Delete();
    world.Fill(Hat);
    EXPECT_TRUE(world.editor.cmdItemSave.enabled);
    world.Save();
    EXPECT_EQ(world.File("Rüstungen"_ansi), RecordLines({Hat}));
    EXPECT_EQ(world.editor.CurrentItemRow, 0);
    EXPECT_TRUE(world.editor.cmdItemDelete.enabled && world.editor.cmdItemHin.enabled);
}

TEST(ItemSaving, NoRecordIsWrittenWithoutItsUnit) {
    EditorAtWork world;
    for (const Road& road : Roads) {
        Prepare(world, road);
        world.editor.cmbItemPreis.Select(-1);
        ExpectRefusal(world, "Bitte wählt zum Preis auch"_ansi);
    }
}

TEST(ItemSaving, AFileThatWasNotReadWholeIsNeverWritten) {
    EditorAtWork world;
    const std::string cutOff = world.File("Kleidung") + "Rest1\r\n";
    world.program.Write("Emporium/Kleidung.dat", cutOff);
    for (const std::string_view view : {"Kleidung", "Alles"}) {
        world.script.ExpectMessage("Nicht alles ist gelungen:\n\nKleidung.dat: ");
        world.View(view);
        world.FormCategory("Kleidung");
        world.Fill(Hat);
        ExpectRefusal(world, "Kleidung.dat: ");
        world.Open("Zopf");
        world.Fill(Hat);
        ExpectRefusal(world, "Kleidung.dat: ");
        const auto state = world.State();
        world.script.ExpectYesNo(DeleteQuestion, true);
        world.script.ExpectMessage("Kleidung.dat: ");
        world.Delete();
        EXPECT_EQ(world.State(), state);
    }
    world.Open("Helm"); // the others can be written as ever
    world.Fill(Hat);
    world.Save();
    EXPECT_EQ(world.File("Rüstungen"_ansi), RecordLines({Hat}));
    world.View("Nahkampfwaffen");
    world.Open("Dolch");
    world.FormCategory("Kleidung");
    world.script.ExpectYesNo(MoveQuestion, true);
    ExpectRefusal(world, "Kleidung.dat: ");
    EXPECT_EQ(world.File("Kleidung"), cutOff);
}

} // namespace
} // namespace emporium::test
