#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

const ItemRecord Coat = {"mantel2", "-1.", "100D", std::string("Für \u0081 den Regen"_ansi),
                         std::string("SÜ|"_ansi)};

TEST(ItemSaving, AFileThatWasNotReadWholeIsNeverWritten) {
    EditorAtWork world;
    const std::string cutOff = world.File("Kleidung") + "Rest1\r\n";
    world.program.Write("Emporium/Kleidung.dat", cutOff);
    for (const std::string_view view : {"Kleidung", "Alles"}) {
        world.script.ExpectMessage("Kleidung.dat: ");
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

TEST(ItemSaving, AFileThatAnotherProgramChangedIsNotOverwrittenUnasked) {
    const std::string foreign = Lines({"Fremd1", "", "1H", "", ""});
    struct World : EditorAtWork {
        // Kleidung changes behind the open form of the coat.
        World(const std::string& bytes, bool overwrite) {
            View("Kleidung");
            Open("mantel");
            Fill(Hat);
            program.Write("Emporium/Kleidung.dat", bytes);
            script.platform.AskYesNo = [this, overwrite](const YesNoBox& box) {
                const bool aboutChange = box.text.starts_with("Kleidung.dat wurde inzwischen");
                questions += aboutChange ? 1 : 0;
                EXPECT_EQ(box.noIsDefault, aboutChange);
                return !aboutChange || overwrite;
            };
        }
        int questions = 0;
    };
    const std::string before = EditorAtWork().File("Kleidung");
    const std::string coat = RecordLines({Coat});
    std::string changed = before;
    std::string without = before;
    without.erase(before.find(coat), coat.size());
    changed.replace(before.find(coat), coat.size(), RecordLines({Hat}));
    for (const auto act :
         {&EditorAtWork::Save, static_cast<void (EditorAtWork::*)()>(&EditorAtWork::Delete)}) {
        World goesOn(foreign, true);
        (goesOn.*act)();
        EXPECT_EQ(goesOn.File("Kleidung"), act == &EditorAtWork::Save ? changed : without);
        EXPECT_EQ(goesOn.questions, 1);

        World reloads(foreign + before, false);
        (reloads.*act)();
        EXPECT_EQ(reloads.File("Kleidung"), foreign + before) << "nothing is written";
        EXPECT_EQ(RecordOfForm(reloads.editor), Hat) << "what the user typed stays";
        EXPECT_TRUE(reloads.Shown().starts_with("Ärmel 5S Fremd 1H"_ansi));
        EXPECT_EQ(reloads.editor.lvGegenstände.reveal.row, ChosenPlace(reloads.editor));
        reloads.Save();
        EXPECT_EQ(reloads.File("Kleidung"), foreign + changed) << "still the same item";
        EXPECT_EQ(reloads.questions, 1);
    }
    World first(before + foreign, false);
    first.Open(0);
    first.Fill(Hat);
    first.Save();
    first.Save();
    EXPECT_EQ(first.File("Kleidung"),
              RecordLines({Hat}) + before.substr(before.find("Ärmel"_ansi)) + foreign);
    World emptied("", false);
    emptied.Save();
    EXPECT_FALSE(emptied.editor.cmdItemDelete.enabled);
    World vanished(foreign, false);
    vanished.Save();
    vanished.script.ExpectMessage("Bitte wählt zuerst"_ansi);
    vanished.Delete(); // nothing is chosen now
    vanished.Save();
    EXPECT_EQ(vanished.editor.CurrentItemRow, -1) << "saving chooses none";
    EXPECT_EQ(vanished.File("Kleidung"), foreign + RecordLines({Hat})) << "a new item now";
    World moves(foreign + before, false);
    moves.FormCategory("Abakus");
    moves.Save();
    EXPECT_EQ(moves.File("Abakus"), "");
    moves.Save();
    EXPECT_EQ(moves.File("Abakus"), coat);
    EXPECT_EQ(moves.questions, 1);
}

TEST(ItemSaving, ARecordWithoutItsMarksIsNotMoved) {
    EditorAtWork world;
    const std::string bytes = Lines({"Seil1", "", "12", "", ""});
    world.program.Write("Emporium/Abakus.dat", bytes);
    world.script.ExpectMessage("Abakus.dat: Datensätze ohne"_ansi);
    world.View("Abakus");
    world.Open(0);
    world.Fill({"Seil2", "", "12H", "", ""});
    world.FormCategory("Kleidung");
    world.script.ExpectYesNo(MoveQuestion, true);
    const std::string before = world.File("Kleidung");
    world.script.ExpectMessage("Diesem Gegenstand fehlt");
    world.Save();
    EXPECT_EQ(world.File("Kleidung"), before);
    EXPECT_EQ(world.File("Abakus"), bytes);
}

TEST(ItemSaving, EmptyLinesAtTheEndAreNoFaultAndTheNextWriteDropsThem) {
    EditorAtWork world;
    const std::string rope = Lines({"Seil1", "", "12H", "", "BO|"}), hat = RecordLines({Hat});
    const auto saved = [&world](const std::string& before, bool isNew) {
        world.program.Write("Emporium/Abakus.dat", before + "\r\n");
        world.View("Abakus");
        if (!isNew)
            world.Open(0);
        world.Fill(Hat);
        world.Save();
        return world.File("Abakus");
    };
    EXPECT_EQ(saved("", true), hat);
    EXPECT_EQ(saved(rope, true), rope + hat);
    EXPECT_EQ(saved(rope, false), hat);
}

TEST(ItemSaving, AViewTakesAsManyRowsAsTheirNumbersReach) {
    EditorAtWork world;
    std::string bytes;
    for (int i = 0; i < MaxRows; ++i)
        bytes += "Ding1\r\n\r\n1H\r\n\r\n\r\n";
    world.program.Write("Emporium/Abakus.dat", bytes);
    world.View("Kleidung");
    world.Open("Zopf");
    world.FormCategory("Abakus");
    world.script.ExpectYesNo(MoveQuestion, true);
    ExpectRefusal(world, "Abakus.dat: Die Kategorie ist voll");
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

    const std::string told = "Abakus.dat: Die Ansicht";
    world.script.ExpectMessage(told);
    world.View("Alles");
    EXPECT_EQ(world.editor.ItemCount(), MaxRows);
    world.script.ExpectMessage("Abakus.dat: ");
    world.Open(MaxRows - 1);
    EditItemText(world.editor, NameText, "anders");
    world.Save();
    EXPECT_TRUE(world.File("Abakus") == bytes);
    world.program.Write("Emporium/Abakus.dat", bytes + RecordLines({Hat}));
    world.script.ExpectMessage("Abakus.dat: Sie hat mehr als 32767 Gegenst");
    world.View("Abakus");
    world.program.Write("Emporium/Abakus.dat", bytes + "Rest1\n");
    world.script.ExpectMessage("Abakus.dat: Der letzte Datensatz");
    world.View("Abakus");
}

} // namespace
} // namespace emporium::test
