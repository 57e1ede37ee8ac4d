#include "frame/StartUp.h"
#include "itemeditor/CategoryChoice.h"
#include "support/MemoryDisk.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

const std::string Older = Lines({"Armbrust4", "90", "40D", "", ""});
const std::string Replaced = Lines({"Bogen5", "", "1H", "", ""});
const std::string Imported = Lines({"Bogen1", "40", "15D", "Lang", "BO|"});
constexpr const char* OlderFile = "Emporium/EmporiumFernwaffen.dat";
constexpr const char* PresentFile = "Emporium/Fernwaffen.dat";
constexpr const char* StrayFile = "Emporium/Fernwaffen.dat.orvan-neu0";

// A folder with an older category file to be renamed, a weapon to be imported, and what a killed
// run left.
struct Installation {
    Installation() {
        std::string source = "Waffen\r\n-\r\nBogen\r\n40\r\n\r\nLang\r\n";
        for (int line = 4; line < 22; ++line)
            source += line == 8 ? "15\r\n" : line == 20 ? "Dukaten\r\n" : "BO|\r\n";
        disk.Write("Emporium/ItemKategorien.dat", Lines({" 1 ", "Fernwaffen"}));
        disk.Write("Arsenal/Fernwaffen.dat", source);
        disk.Write(OlderFile, Older);
        disk.Write(PresentFile, Replaced);
        disk.Write(StrayFile, "");
        script.platform.disk.files = disk.Files();
    }

    bool Start() {
        window = frmEmporiumMain();
        return StartUp(window, script.platform);
    }

    bool IsUpToDate() const {
        return disk.Read(PresentFile) == Older + Imported &&
               disk.Contents(disk.folders.EmporiumFolder()).size() == 2;
    }

    MemoryDisk disk;
    ScriptedPlatform script{disk.folders};
    frmEmporiumMain window;
};

TEST(Start, BringsOlderFilesToTheirNamesBeforeItImports) {
    Installation here;
    here.script.ExpectMessage("Schreibvorgang.orvan-journal: ");
    here.disk.Write("Emporium/Schreibvorgang.orvan-journal", "damaged");
    here.disk.Put(here.disk.folders.TempFolder / "Temp.html.orvan-neu1", "");
    for (int start = 0; start < 2; ++start) {
        EXPECT_TRUE(here.Start());
        here.disk.Remove("Emporium/Schreibvorgang.orvan-journal-beiseite");
        EXPECT_TRUE(here.IsUpToDate());
        EXPECT_TRUE(here.disk.Contents(here.disk.folders.TempFolder).empty());
    }
}

TEST(Start, MayBreakOffInAnyCallAndIsFinishedByTheNext) {
    Sweep([](Trouble trouble, int n) {
        Installation here;
        bool told = false;
        here.script.platform.ShowMessage = [&told](std::string_view text) {
            told = true;
            EXPECT_EQ(text.find("fehlt der Ordner Data"), text.npos) << "it is there";
        };
        const bool reached = here.disk.Suffer(trouble, n, 0, [&here] { here.Start(); });
        const auto& items = here.window.items;
        const bool listed = items.cmbKategorien.Entries().size() > 1;
        EXPECT_TRUE(trouble >= Trouble::Killed || items.cmdKategorieNeu.enabled == listed);
        EXPECT_TRUE(told || trouble >= Trouble::Killed || here.IsUpToDate());
        here.disk.Restart(trouble);
        here.Start();
        EXPECT_TRUE(here.IsUpToDate());
        return reached;
    });
}

TEST(Start, ASecondCopyIsToldAndLeavesTheOthersWorkAlone) {
    Installation here;
    const auto mark = std::make_shared<int>();
    here.script.platform.disk.files.claim = [&mark](const auto&) {
        return FolderClaim{true, mark};
    };
    bool goOn = false;
    int questions = 0;
    here.script.platform.AskYesNo = [&](const YesNoBox& box) {
        EXPECT_TRUE(box.text.starts_with("Orvan-Emporium 3 läuft schon"_ansi));
        return ++questions, goOn;
    };
    for (const bool answer : {false, true}) {
        goOn = answer;
        EXPECT_EQ(here.Start(), goOn);
        EXPECT_EQ(here.window.items.cmbKategorien.Entries().size(), goOn ? 2U : 1U);
        EXPECT_EQ(here.window.claim.mark, mark) << "as long as the window lives";
    }
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(here.disk.Read(StrayFile), "") << "what another is writing";
}

TEST(Start, SaysInAFolderThatCannotBeWrittenWhatCanBeDoneThereAndTouchesNothing) {
    for (const bool ofPages : {false, true}) {
        Installation here;
        if (ofPages)
            here.disk.Write("Emporium/Schreibvorgang.orvan-journal", "damaged");
        const auto& folders = here.disk.folders;
        const auto closed = ofPages ? folders.TempFolder : folders.EmporiumFolder();
        here.disk.Put(closed, "", FileStatus::Kind::Folder).writable = false;
        here.script.ExpectMessage(ofPages ? "Das Programm kann in den Ordner Temp nicht schreiben"
                                          : "Das Programm kann in seinen Ordner nicht schreiben.");
        EXPECT_TRUE(here.Start());
        ChooseCategory(here.window.items, here.script.platform, 1);
        EXPECT_GE(here.window.items.ItemCount(), 1) << "it can still be read";
        EXPECT_EQ(here.disk.Read(OlderFile), ofPages ? "(absent)" : Older);
    }
}

TEST(Start, ShowsTheItemsAndTurnsToTheShopAndBack) {
    Installation here;
    EXPECT_TRUE(here.Start());
    const ItemEditor& items = here.window.items;
    EXPECT_TRUE(here.window.caption.starts_with("Orvan-Emporium 3 v"));
    EXPECT_FALSE(items.cmdItemHin.visible || items.lvGegenstände.visible ||
                 items.cmdItemSave.enabled || items.cmdListeDrucken.enabled ||
                 items.cmdKategorieDelete.enabled || here.window.shop.cmdGenName.enabled);
    for (const bool chosen : {false, true}) {
        if (chosen)
            ChooseCategory(here.window.items, here.script.platform, 1);
        for (const Button* button : {&items.cmdItemNeu, &items.cmdItemDelete, &items.cmdItemSave})
            EXPECT_EQ(button->visible, chosen);
        ShowShopEditor(here.window);
        EXPECT_TRUE(here.window.mode == Mode::ShopEditor && items.cmdItemHin.visible);
        EXPECT_EQ(items.cmdItemHin.enabled, chosen);
        ShowItemEditor(here.window);
        EXPECT_TRUE(here.window.mode == Mode::ItemEditor && !items.cmdItemHin.visible);
    }
    here.script.platform.OpenInViewer = [&](const auto& page) {
        here.window.caption = page.stem().string();
    };
    OpenHelp(here.script.platform);
    EXPECT_EQ(here.window.caption, "Emporium");
}

TEST(Start, SaysThatTheProgramStandsAlone) {
    Installation here;
    here.disk.names.clear();
    here.script.ExpectMessage("Neben dem Programm fehlt der Ordner Data.");
    EXPECT_TRUE(here.Start());
    EXPECT_TRUE(here.disk.names.empty());
}

} // namespace
} // namespace emporium::test
