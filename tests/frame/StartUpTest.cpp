#include "frame/frmEmporiumMain.h"
#include "itemeditor/CategoryChoice.h"
#include "support/MemoryDisk.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

const std::string Older = Lines({"Armbrust4", "90", "40D", "", ""});
const std::string Replaced = Lines({"Bogen5", "", "1H", "", ""});
const std::string Imported = Lines({"Bogen1", "40", "15D", "Lang", "BO|"});
constexpr const char* OlderFile = "Emporium/EmporiumFernwaffen.dat";
constexpr const char* PresentFile = "Emporium/Fernwaffen.dat";

// A folder with an older category file to be renamed and a weapon to be imported.
struct Installation {
    Installation() {
        std::string source = "Waffen\r\n-\r\nBogen\r\n40\r\n\r\nLang\r\n";
        for (int line = 4; line < 22; ++line)
            source += line == 8 ? "15\r\n" : line == 20 ? "Dukaten\r\n" : "BO|\r\n";
        program.Write("Emporium/ItemKategorien.dat", Lines({" 1 ", "Fernwaffen"}));
        program.Write("Arsenal/Fernwaffen.dat", source);
        program.Write(OlderFile, Older);
        program.Write(PresentFile, Replaced);
    }

    void ExpectUpToDate() const {
        EXPECT_EQ(program.Read(PresentFile), Older + Imported);
        EXPECT_EQ(program.Read(OlderFile), "(absent)");
        const fs::directory_iterator all(program.folders.EmporiumFolder());
        EXPECT_EQ(std::distance(begin(all), end(all)), 2) << "a stray file";
    }

    ProgramFolder program;
    ScriptedPlatform script{program.folders};
};

TEST(Start, BringsOlderFilesToTheirNamesBeforeItImports) {
    Installation here;
    here.script.ExpectMessage("Schreibvorgang.orvan-journal: ");
    for (const char* file : {"Emporium/Schreibvorgang.orvan-journal",
                             "Emporium/Fernwaffen.dat.orvan-neu0", "../Temp/Temp.html.orvan-neu1"})
        here.program.Write(file, "what a killed run left");
    for (int start = 0; start < 2; ++start) {
        frmEmporiumMain window;
        EXPECT_TRUE(StartUp(window, here.script.platform));
        fs::remove(here.program.folders.EmporiumFolder() / "Schreibvorgang.orvan-journal-beiseite");
        here.ExpectUpToDate();
        EXPECT_TRUE(fs::is_empty(here.program.folders.TempFolder));
    }
}

TEST(Start, MayBreakOffInAnyCallAndIsFinishedByTheNext) {
    const auto tries = [](int n, int trouble) {
        SCOPED_TRACE(std::to_string(n) + ", trouble " + std::to_string(trouble));
        Installation here;
        MemoryDisk disk;
        for (const char* name :
             {"Emporium/ItemKategorien.dat", "Arsenal/Fernwaffen.dat", OlderFile, PresentFile})
            disk.Write(name, here.program.Read(name));
        ScriptedPlatform script(disk.folders);
        script.platform.disk.files = disk.Files();
        bool told = false;
        script.platform.ShowMessage = [&told](std::string_view) { told = true; };
        if (trouble == 0)
            disk.failing = {n};
        else
            disk.lastCall = n;
        const auto start = [&] {
            frmEmporiumMain window;
            StartUp(window, script.platform);
        };
        try {
            start();
        } catch (const KilledHere&) {
        }
        const bool reached = disk.calls >= n;
        EXPECT_TRUE(told || trouble > 0 || disk.Read(PresentFile) == Older + Imported);
        disk.CutPower((trouble & 2) != 0, (trouble & 4) != 0);
        start();
        EXPECT_EQ(disk.Read(PresentFile), Older + Imported);
        EXPECT_EQ(disk.Read(OlderFile), "(absent)");
        EXPECT_EQ(disk.Files().entries(disk.folders.EmporiumFolder()).size(), 2U);
        return reached;
    };
    for (const int trouble : {0, 1, 3, 5, 7})
        for (int n = 1; tries(n, trouble);)
            ++n;
}

TEST(Start, ASecondCopyIsToldAndLeavesTheOthersWorkAlone) {
    Installation here;
    auto window = std::make_unique<frmEmporiumMain>();
    EXPECT_TRUE(StartUp(*window, here.script.platform));
    here.program.Write("Emporium/Fernwaffen.dat.orvan-neu0", "what another is writing");
    std::vector<std::string> questions;
    bool goOn = false;
    here.script.platform.AskYesNo = [&](const YesNoBox& box) {
        questions.push_back(box.text);
        return goOn;
    };
    for (const bool answer : {false, true, true}) {
        goOn = answer;
        auto next = std::make_unique<frmEmporiumMain>();
        EXPECT_EQ(StartUp(*next, here.script.platform), goOn);
        EXPECT_EQ(next->items.cmbKategorien.Entries().size(), goOn ? 2U : 1U);
        if (goOn)
            window = std::move(next); // the copy before it ends
    }
    EXPECT_EQ(questions.size(), 3U);
    EXPECT_NE(here.program.Read("Emporium/Fernwaffen.dat.orvan-neu0"), "(absent)");
    window.reset();
    frmEmporiumMain alone;
    EXPECT_TRUE(StartUp(alone, here.script.platform));
    EXPECT_EQ(questions.size(), 3U);
}

TEST(Start, SaysInAFolderThatCannotBeWrittenWhatCanBeDoneThereAndTouchesNothing) {
    Installation here;
    const Folders& folders = here.program.folders;
    auto& files = here.script.platform.disk.files;
    const std::pair<fs::path, std::string_view> notices[] = {
        {folders.EmporiumFolder(), "Das Programm kann in seinen Ordner nicht schreiben."},
        {folders.TempFolder, "Das Programm kann in den Ordner Temp nicht schreiben"}};
    for (const auto& [locked, notice] : notices) {
        files.createNew = [&locked](const auto& file, FileLayer::Handle& handle) {
            return file.parent_path() == locked
                       ? std::make_error_code(std::errc::read_only_file_system)
                       : SystemFiles().createNew(file, handle);
        };
        here.script.ExpectMessage(notice);
        frmEmporiumMain window;
        EXPECT_TRUE(StartUp(window, here.script.platform));
        ChooseCategory(window.items, here.script.platform, 1);
        EXPECT_GE(window.items.ItemCount(), 1) << "it can still be read";
        const bool touched = locked == folders.TempFolder;
        EXPECT_EQ(here.program.Read(OlderFile), touched ? "(absent)" : Older);
    }
}

TEST(Start, ShowsTheItemsAndTurnsToTheShopAndBack) {
    Installation here;
    frmEmporiumMain window;
    ItemEditor& items = window.items;
    const Button* const ofItems[] = {&items.cmdItemNeu, &items.cmdItemDelete, &items.cmdItemSave};
    const auto visible = [&](bool is) {
        return std::all_of(std::begin(ofItems), std::end(ofItems),
                           [is](const Button* button) { return button->visible == is; });
    };
    EXPECT_TRUE(StartUp(window, here.script.platform));
    EXPECT_TRUE(window.caption.starts_with("Orvan-Emporium 3 v"));
    EXPECT_TRUE(visible(false) && !items.cmdItemHin.visible && !items.lvGegenstände.visible);
    EXPECT_FALSE(items.cmdItemSave.enabled || items.cmdListeDrucken.enabled ||
                 items.cmdKategorieDelete.enabled || window.shop.cmdGenName.enabled);
    for (const bool chosen : {false, true}) {
        if (chosen)
            ChooseCategory(items, here.script.platform, 1);
        ShowShopEditor(window);
        EXPECT_TRUE(window.mode == Mode::ShopEditor && items.cmdItemHin.visible);
        EXPECT_TRUE(items.cmdItemHin.enabled == chosen && visible(chosen));
        ShowItemEditor(window);
        EXPECT_TRUE(window.mode == Mode::ItemEditor && !items.cmdItemHin.visible);
    }
    here.script.platform.OpenInViewer = [&](const auto& page) { window.caption = page.stem(); };
    OpenHelp(here.script.platform);
    EXPECT_EQ(window.caption, "Emporium");
}

TEST(Start, SaysThatTheProgramStandsAlone) {
    Installation here;
    fs::remove_all(here.program.folders.DataFolder);
    here.script.ExpectMessage("Neben dem Programm fehlt der Ordner Data.");
    frmEmporiumMain window;
    EXPECT_TRUE(StartUp(window, here.script.platform));
    EXPECT_FALSE(fs::exists(here.program.folders.DataFolder));
}

} // namespace
} // namespace emporium::test
