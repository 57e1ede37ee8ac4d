#include "base/Ansi.h"
#include "frame/frmEmporiumMain.h"
#include "itemeditor/CategoryChoice.h"
#include "itemeditor/ItemForm.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

class Modes : public testing::Test {
protected:
    Modes() {
        program.Write("Emporium/ItemKategorien.dat", Lines({" 2 ", "Abakus", "Zelte"}));
        program.Write("Emporium/Abakus.dat", "");
        program.Write("Emporium/Zelte.dat", Lines({"Plane1", "", "1D", "", ""}));
        StartUp(window, script.platform, program.root);
    }

    void View(int index) { ChooseCategory(window.items, script.platform, window.folders, index); }

    ProgramFolder program;
    ScriptedPlatform script;
    frmEmporiumMain window;
    const Button& cmdItemHin = window.items.cmdItemHin;
};

TEST_F(Modes, TheCaptionJoinsMinorAndRevision) {
    EXPECT_EQ(window.caption, "Orvan-Emporium 3 v1.00 - Die Velmar Tuchhalle");
    EXPECT_EQ(window.items.cmbKategorien.Entries(),
              (std::vector<std::string>{"Abakus", "Alles", "Zelte"}));
    EXPECT_EQ(window.items.cmbKategorien.Selection(), -1);
    EXPECT_EQ(window.mode, Mode::ItemEditor);
    EXPECT_FALSE(cmdItemHin.visible);
}

TEST_F(Modes, TheShopTakesItemsOnlyFromAViewThatHasSome) {
    ShowShopEditor(window);
    EXPECT_TRUE(cmdItemHin.visible);
    EXPECT_FALSE(cmdItemHin.enabled) << "no category has been chosen";
    View(2);
    EXPECT_TRUE(cmdItemHin.enabled);
    View(0);
    EXPECT_FALSE(cmdItemHin.enabled);
    ShowItemEditor(window);
    EXPECT_FALSE(cmdItemHin.visible);
    View(1);
    ShowShopEditor(window);
    ShowShopEditor(window);
    EXPECT_EQ(window.mode, Mode::ShopEditor);
    EXPECT_TRUE(cmdItemHin.visible && cmdItemHin.enabled);
}

TEST_F(Modes, SwitchingKeepsWhatWasTyped) {
    View(2);
    EditItemText(window.items, NameText, "Plane mit");
    ShowShopEditor(window);
    ShowItemEditor(window);
    ShowItemEditor(window);
    EXPECT_EQ(window.items.txtItem[NameText].text, "Plane mit");
    EXPECT_EQ(window.items.cmbKategorien.Text(), "Zelte");
    EXPECT_EQ(window.items.ItemCount(), 1);
}

TEST_F(Modes, HelpOpensItsPage) {
    OpenHelp(window, script.platform);
    EXPECT_EQ(script.viewed,
              std::vector<std::filesystem::path>{program.root / "Hilfe" / "Emporium.htm"});
}

} // namespace
} // namespace emporium::test
