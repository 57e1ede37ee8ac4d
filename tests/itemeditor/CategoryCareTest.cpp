#include "files/Journal.h"
#include "support/EditorAtWork.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

TEST(CategoryCare, WhatAnotherProgramDidToTheCategoriesStands) {
    EditorAtWork world;
    const auto list = [&world] { return world.File("ItemKategorien"); };
    const auto create = [&world] { NewCategory(world.editor, world.script.platform); };
    const std::string names = "\nAlles\nAbakus\n\nFremd\nKleidung";
    world.View("Alles");
    world.program.Write("Emporium/ItemKategorien.dat", "4" + names);
    world.script.ExpectText(NamePrompt, "Zelte");
    world.script.ExpectMessage("Die Kategorie konnte nicht angelegt werden.\n\nItemKategorien.dat");
    const std::string state = world.State();
    create();
    EXPECT_EQ(list() + world.State(), "4" + names + state) << "one name is missing";
    world.program.Write("Emporium/ItemKategorien.dat", "3" + names);
    world.script.ExpectText(NamePrompt, "Zelte");
    create();
    EXPECT_EQ(list(), " 4 " + names + "\nZelte\n");
    EXPECT_EQ(world.editor.cmbKategorien.Entries(),
              (std::vector<std::string>{"Abakus", "Alles", "Fremd", "Kleidung", "Zelte"}));

    for (const std::string name : {"Zelte", "Fremd"}) { // unknown to the view, and without a file
        world.FormCategory(name);
        world.Fill(Hat);
        world.Save();
        EXPECT_EQ(world.File(name), RecordLines({Hat}));
    }

    world.program.Write("Emporium/ItemKategorien.dat", "1\nKleidung\n");
    world.program.Remove("Emporium/Zelte.dat");
    world.View("Alles");
    world.FormCategory("Zelte");
    world.Fill(Hat);
    ExpectRefusal(world, "Zelte.dat: Diese Kategorie gibt es nicht mehr");
    world.program.Remove("Emporium/Abakus.dat");
    world.script.ExpectMessage("Abakus.dat: Die Datei fehlt.");
    world.View("Abakus");
    world.Fill(Hat);
    ExpectRefusal(world, "Abakus.dat: Diese Kategorie gibt es nicht mehr");
    world.View("Kleidung");
    world.Open("Zopf");
    world.FormCategory("Abakus");
    world.script.ExpectYesNo(MoveQuestion, true);
    ExpectRefusal(world, "Abakus.dat: Diese Kategorie gibt es nicht mehr");

    world.program.Write("Emporium/ItemKategorien.dat", "1\nAlles\nAbakus\n");
    world.program.Write("Emporium/Abakus.dat", "");
    world.View("Abakus");
    for (const std::string& foreign : {std::string("Fremd1\n"), RecordLines({Hat})}) {
        world.program.Write("Emporium/Abakus.dat", foreign);
        world.script.ExpectYesNo(DeleteCategoryQuestion, true);
        world.script.ExpectMessage("Abakus.dat: Diese Kategorie ist nicht mehr leer");
        DeleteCategory(world.editor, world.script.platform);
        EXPECT_EQ(world.File("Abakus"), foreign);
    }
    world.program.Write("Emporium/Abakus.dat", "\n");
    world.script.ExpectYesNo(DeleteCategoryQuestion, true);
    DeleteCategory(world.editor, world.script.platform);
    EXPECT_EQ(list(), " 0 \nAlles\n");
    EXPECT_TRUE(world.editor.viewFiles.empty());
}

TEST(CategoryCare, WhatIsNoFileOrNotOursToWriteIsRefusedAndAMissingListMadeAnew) {
    EditorAtWork world;
    const auto refuse = [&](std::string_view told) {
        world.script.ExpectYesNo(DeleteCategoryQuestion, true);
        world.script.ExpectMessage(told);
        DeleteCategory(world.editor, world.script.platform);
    };
    const auto abakus = world.program.folders.EmporiumFolder() / "Abakus.dat";
    const std::string list = world.File("ItemKategorien");
    world.View("Abakus");
    for (const auto kind : {FileStatus::Kind::Other, FileStatus::Kind::Link}) {
        world.program.Put(abakus, "/fremd/ziel.dat", kind);
        refuse("Die Kategorie konnte nicht gelöscht werden."_ansi);
        EXPECT_EQ(world.File("ItemKategorien"), list);
    }
    world.program.Put(abakus, "");
    world.program.locked = true;
    refuse("Ein anderes Fenster des Programms schreibt gerade.");
    world.Fill(Hat);
    ExpectRefusal(world, "Ein anderes Fenster des Programms schreibt gerade.");
    world.script.ExpectText(NamePrompt, "Zelte");
    world.script.ExpectMessage("Ein anderes Fenster des Programms schreibt gerade.");
    NewCategory(world.editor, world.script.platform);
    world.View("Abakus");                                    // needs no turn
    ChooseCategory(world.editor, world.script.platform, -1); // a category that has left the list
    EXPECT_EQ(world.Shown(), "");
    const auto journal = world.program.folders.EmporiumFolder() / JournalName;
    world.program.Put(journal, "");
    for (const auto failing : {"", "status Schreibvorgang.orvan-journal"}) {
        world.program.failingCall = failing;
        world.script.ExpectMessage("Ein früherer Schreibvorgang"_ansi);
        world.View("Abakus");
    }
    world.program.locked = false;
    world.Fill(Hat);
    world.program.failingCall = "read Schreibvorgang.orvan-journal";
    ExpectRefusal(world, "Ein früherer Schreibvorgang konnte nicht beendet werden."_ansi);
    world.program.failingCall.clear();
    world.script.ExpectMessage("Schreibvorgang.orvan-journal: ");
    world.View("Abakus");

    world.program.Remove("Emporium/ItemKategorien.dat");
    world.program.Write("Emporium/Alles.dat", ""); // can be no category
    std::vector<std::string> faults;
    ReadCategoryList(world.editor, world.script.platform.disk, faults);
    ASSERT_EQ(faults.size(), 1U);
    EXPECT_EQ(faults[0], "ItemKategorien.dat: Die Datei oder ihr Ordner fehlt. Deshalb gibt es nur "
                         "die Auswahl „Alles“."_ansi);
    const std::string question =
        "Die Liste der Kategorien fehlt. Soll sie neu angelegt werden, mit "
        "den drei festen Kategorien und allen, deren Dateien da sind?";
    world.script.ExpectYesNo(question, false);
    NewCategory(world.editor, world.script.platform);
    world.program.failingCall = "entries Emporium";
    world.script.ExpectYesNo(question, true);
    world.script.ExpectMessage("Die Kategorie konnte nicht angelegt werden.");
    NewCategory(world.editor, world.script.platform);
    EXPECT_EQ(world.File("ItemKategorien"), "(absent)");
    world.program.failingCall.clear();
    world.script.ExpectYesNo(question, true);
    world.script.ExpectText(NamePrompt, "");
    NewCategory(world.editor, world.script.platform);
    EXPECT_EQ(
        world.File("ItemKategorien"),
        std::string(" 6 \r\nNahkampfwaffen\r\nFernwaffen\r\nRüstungen\r\nAbakus\r\nKleidung\r\n"
                    "Öllampen\r\n"_ansi));
    EXPECT_EQ(world.editor.cmbKategorien.Entries().size(), 7U);
}

} // namespace
} // namespace emporium::test
