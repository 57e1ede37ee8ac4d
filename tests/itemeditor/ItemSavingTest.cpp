#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

const ItemRecord Hat = {"Hut2", "1,5", "12S", "Spitz", "BO|TH|"};
const ItemRecord Coat = {"mantel2", "-1.", "100D", std::string("Für \u0081 den Regen"_ansi),
                         std::string("SÜ|"_ansi)};

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
        Take(world, road);
        EXPECT_EQ(world.Files(), files);
        EXPECT_EQ(RecordOfForm(world.editor), ItemRecord());
        EXPECT_EQ(world.editor.cmbItemKategorien.Text(), road.formCategory);
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
    const auto empty = [](EditorAtWork& world) { world.View("Abakus"); };
    ExpectAllOrNothing(empty, [](EditorAtWork& world) {
        world.script.ExpectText(NamePrompt, "Zelte");
        NewCategory(world.editor, world.script.platform, world.program.folders);
    });
    ExpectAllOrNothing(empty, [](EditorAtWork& world) {
        world.script.ExpectYesNo(DeleteCategoryQuestion, true);
        DeleteCategory(world.editor, world.script.platform, world.program.folders);
    });
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
    world.View("Nahkampfwaffen");
    world.Open("Dolch");
    world.FormCategory("Kleidung");
    world.script.ExpectYesNo(MoveQuestion, true);
    ExpectRefusal(world, "Kleidung.dat: ");
    EXPECT_EQ(world.File("Kleidung"), cutOff);
}

TEST(ItemSaving, AViewTakesAsManyRowsAsTheirNumbersReach) {
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
