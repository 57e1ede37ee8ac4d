#include "base/Ansi.h"
#include "frame/frmEmporiumMain.h"
#include "itemeditor/CategoryChoice.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

namespace fs = std::filesystem;

class Start : public testing::Test {
protected:
    Start() {
        program.Write("Emporium/ItemKategorien.dat",
                      Lines({" 3 ", "Nahkampfwaffen", "Fernwaffen", "Rüstungen"_ansi}));
        for (const auto name : {"Nahkampfwaffen"_ansi, "Fernwaffen"_ansi, "Rüstungen"_ansi}) {
            const std::string file = std::string(name) + ".dat";
            program.Write("Emporium/" + file, "");
            program.Write("Arsenal/" + file, Lines({"Waffen"}));
        }
        script.platform.ShowMessage = [this](std::string_view text) { told.emplace_back(text); };
    }

    void Run() {
        window = frmEmporiumMain();
        StartUp(window, script.platform, program.root);
    }

    // The start and the box that it showed.
    std::string Told() {
        told.clear();
        Run();
        EXPECT_EQ(told.size(), 1U);
        return told.empty() ? std::string() : told[0];
    }

    ProgramFolder program;
    ScriptedPlatform script;
    std::vector<std::string> told;
    frmEmporiumMain window;
};

TEST_F(Start, BringsOlderFilesToTheirNamesBeforeItImports) {
    std::string source = "Waffen\r\n-\r\nBogen\r\n40\r\n\r\nLang\r\n";
    for (int line = 4; line < 22; ++line)
        source += line == 8 ? "15\r\n" : line == 20 ? "Dukaten\r\n" : "BO|\r\n";
    const std::string older = Lines({"Armbrust4", "90", "40D", "", ""});
    program.Write("Arsenal/Fernwaffen.dat", source);
    program.Write("Emporium/EmporiumFernwaffen.dat", older);
    program.Write("Emporium/Fernwaffen.dat", Lines({"Bogen5", "", "1H", "", ""}));
    program.Write("Emporium/Fernwaffen.dat.orvan-neu0", "what a killed run left");
    for (int start = 0; start < 2; ++start) {
        Run();
        EXPECT_EQ(program.Read("Emporium/Fernwaffen.dat"),
                  older + Lines({"Bogen1", "40", "15D", "Lang", "BO|"}));
        EXPECT_EQ(program.Read("Emporium/EmporiumFernwaffen.dat"), "(absent)");
        EXPECT_EQ(program.Read("Emporium/Fernwaffen.dat.orvan-neu0"), "(absent)");
        EXPECT_EQ(window.items.CategoryNames.size(), 3U);
    }
    EXPECT_TRUE(told.empty());
}

TEST_F(Start, WithoutAListThereIsOnlyTheViewOfAll) {
    const fs::path list = program.folders.EmporiumFolder() / "ItemKategorien.dat";
    fs::remove(list);
    EXPECT_NE(Told().find("\nItemKategorien.dat: Die Datei oder ihr Ordner fehlt."),
              std::string::npos)
        << told[0];
    fs::create_directory(list);
    EXPECT_NE(Told().find("\nItemKategorien.dat: An dieser Stelle liegt ein Ordner."),
              std::string::npos)
        << told[0];
    EXPECT_EQ(window.items.cmbKategorien.Entries(), std::vector<std::string>{"Alles"});
    EXPECT_FALSE(window.items.cmdKategorieNeu.enabled) << "the list would be written";
    ChooseCategory(window.items, script.platform, window.folders, 0);
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(window.items.ItemCount(), 0);
    EXPECT_TRUE(fs::is_directory(list));
}

TEST_F(Start, TellsAllFaultsInOneBox) {
    program.Write("Emporium/Nahkampfwaffen.dat", Lines({"Axt1"}));
    fs::remove(program.folders.DataFolder / "Arsenal" / "Fernwaffen.dat"); // is no fault
    const fs::path source = program.folders.DataFolder / ToPath("Arsenal/Rüstungen.dat"_ansi);
    fs::remove(source);
    fs::create_directory(source);
    fs::remove(program.folders.EmporiumFolder() / "ItemKategorien.dat");
    const std::string text = Told();
    for (const std::string_view fault :
         {"\nNahkampfwaffen.dat: "_ansi, "\nArsenal, Rüstungen.dat: "_ansi,
          "\nItemKategorien.dat: "_ansi})
        EXPECT_NE(text.find(fault), std::string::npos) << fault;
    EXPECT_EQ(text.find("Fernwaffen.dat"), std::string::npos);
    EXPECT_EQ(program.Read("Emporium/Nahkampfwaffen.dat"), Lines({"Axt1"}));
}

TEST_F(Start, AnEmptyFolderOpensAllTheSame) {
    fs::remove_all(program.root);
    Told();
    EXPECT_TRUE(window.caption.starts_with("Orvan-Emporium 3 v"));
    EXPECT_FALSE(fs::exists(program.root)) << "nothing is made up";
    ShowShopEditor(window);
    EXPECT_FALSE(window.items.cmdItemHin.enabled);
}

} // namespace
} // namespace emporium::test
