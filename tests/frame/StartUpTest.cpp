#include "base/Ansi.h"
#include "frame/frmEmporiumMain.h"
#include "itemeditor/CategoryChoice.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

TEST(Start, BringsOlderFilesToTheirNamesBeforeItImports) {
    const ProgramFolder program;
    ScriptedPlatform script;
    std::string source = "Waffen\r\n-\r\nBogen\r\n40\r\n\r\nLang\r\n";
    for (int line = 4; line < 22; ++line)
        source += line == 8 ? "15\r\n" : line == 20 ? "Dukaten\r\n" : "BO|\r\n";
    const std::string older = Lines({"Armbrust4", "90", "40D", "", ""});
    program.Write("Emporium/ItemKategorien.dat", Lines({" 1 ", "Fernwaffen"}));
    program.Write("Arsenal/Fernwaffen.dat", source);
    program.Write("Emporium/EmporiumFernwaffen.dat", older);
    program.Write("Emporium/Fernwaffen.dat", Lines({"Bogen5", "", "1H", "", ""}));
    program.Write("Emporium/Fernwaffen.dat.orvan-neu0", "what a killed run left");
    for (int start = 0; start < 2; ++start) {
        frmEmporiumMain window;
        StartUp(window, script.platform, program.root);
        EXPECT_EQ(program.Read("Emporium/Fernwaffen.dat"),
                  older + Lines({"Bogen1", "40", "15D", "Lang", "BO|"}));
        EXPECT_EQ(program.Read("Emporium/EmporiumFernwaffen.dat"), "(absent)");
        EXPECT_EQ(program.Read("Emporium/Fernwaffen.dat.orvan-neu0"), "(absent)");
    }
}

TEST(Start, SaysInAFolderThatCannotBeWrittenWhatCanBeDoneThereAndTouchesNothing) {
    const ProgramFolder program;
    program.Write("Emporium/ItemKategorien.dat", Lines({" 1 ", "Fernwaffen"}));
    program.Write("Emporium/EmporiumFernwaffen.dat", Lines({"Armbrust4", "90", "40D", "", ""}));
    program.Write("Emporium/Fernwaffen.dat", Lines({"Bogen5", "", "1H", "", ""}));
    for (const auto& locked : {program.folders.EmporiumFolder(), program.folders.TempFolder}) {
        ScriptedPlatform script;
        script.platform.files.createNew = [&locked, real = script.platform.files.createNew](
                                              const auto& file, FileLayer::Handle& handle) {
            return file.parent_path() == locked
                       ? std::make_error_code(std::errc::read_only_file_system)
                       : real(file, handle);
        };
        script.ExpectMessage("Das Programm darf in seinen Ordner nicht schreiben."_ansi);
        frmEmporiumMain window;
        StartUp(window, script.platform, program.root);
        ChooseCategory(window.items, script.platform, program.folders, 1);
        EXPECT_EQ(window.items.ItemCount(), 1) << "it can still be read";
        EXPECT_NE(program.Read("Emporium/EmporiumFernwaffen.dat"), "(absent)");
    }
}

} // namespace
} // namespace emporium::test
