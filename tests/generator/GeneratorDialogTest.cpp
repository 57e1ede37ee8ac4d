#include "base/Ansi.h"
#include "generator/frmEmporiumGenerator.h"
#include "shopeditor/ShopList.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace emporium::test {
namespace {

class GeneratorDialog : public testing::Test {
protected:
    GeneratorDialog() {
        program.Write("Atlas/Regionen.dat", Lines({"[EL]", "Desc=Elmental"}));
        script.platform.ShowGeneratorDialog = [this] {
            ++shown;
            EXPECT_TRUE(dialog.open && shop.ShopCount() == 0);
        };
    }

    void Open(std::string_view types) {
        program.Write("Emporium/ShopgeneratorShops.dat", types);
        OpenGenerator(dialog, shop, script.platform, program.folders);
    }

    void OpenAndChoose() {
        Open("Schmied");
        ChooseShopType(dialog, 0);
        ChooseGeneratorPrices(dialog, 1);
        ChooseGeneratorQuality(dialog, 2);
    }

    void ChooseRegion(int index) {
        ChooseGeneratorRegion(dialog, script.platform, program.folders, index);
    }

    bool CanStart() const { return dialog.cmdStart.enabled; }

    ProgramFolder program;
    ScriptedPlatform script;
    ShopEditor shop;
    frmEmporiumGenerator dialog;
    int shown = 0;
};

TEST_F(GeneratorDialog, OpeningAsksOnlyForAShopWithWaresAndThenEmptiesIt) {
    AddShopRow(shop, MakeShopRow("Seil1", "", "1H", ""));
    shop.txtName.text = "Laden";
    for (const bool answer : {false, true}) {
        script.ExpectYesNo(
            "Ihr arbeitet momentan an einem Shop, beim Start des Generators werden sämtliche Werte "
            "verworfen ! Wollt ihr den Generator wirklich starten ?"_ansi,
            answer);
        Open("Schmied");
        EXPECT_EQ(shown, answer ? 1 : 0);
        EXPECT_EQ(shop.ShopCount(), answer ? 0 : 1);
        EXPECT_FALSE(dialog.open);
    }
    Open("Schmied");
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(shop.txtName.text, "Laden");
}

TEST_F(GeneratorDialog, EveryOpeningStartsWithoutChoicesAndReadsTheTypesAnew) {
    OpenAndChoose();
    TickShopRegion(dialog, true);
    ChooseRegion(1);
    Open("Zelter\r\n\r\nÄrzte\nArmbruster"_ansi);
    EXPECT_EQ(dialog.cmbShopBeruf.Entries(),
              (std::vector<std::string>{"", "Armbruster", std::string("Ärzte"_ansi), "Zelter"}));
    for (const ChoiceList* list : {&dialog.cmbShopBeruf, &dialog.cmbShopPreise,
                                   &dialog.cmbShopQualität, &dialog.cmbShopRegion})
        EXPECT_EQ(list->Selection(), -1);
    EXPECT_FALSE(dialog.chkShopRegion.ticked || dialog.cmbShopRegion.enabled || CanStart());
    EXPECT_EQ(dialog.lblRegionen.caption, "");
}

TEST_F(GeneratorDialog, ATypeListThatGivesNothingLeavesTheDialogUsable) {
    Open("");
    EXPECT_TRUE(dialog.cmbShopBeruf.Entries().empty());
    const auto file = program.folders.EmporiumFolder() / "ShopgeneratorShops.dat";
    for (const char* reason : {"Die Datei fehlt.", "An dieser Stelle liegt ein Ordner."}) {
        std::filesystem::remove(file);
        if (*reason == 'A')
            std::filesystem::create_directory(file);
        script.ExpectMessage(std::string("Nicht alles ist gelungen:\n\n"
                                         "ShopgeneratorShops.dat: ") +
                             reason);
        OpenGenerator(dialog, shop, script.platform, program.folders);
    }
    EXPECT_EQ(shown, 3);
}

TEST_F(GeneratorDialog, TheThirdChoiceEnablesTheButtonInAnyOrder) {
    const std::array<void (*)(frmEmporiumGenerator&, int), 3> choices = {
        ChooseShopType, ChooseGeneratorPrices, ChooseGeneratorQuality};
    std::array<std::size_t, 3> order = {0, 1, 2};
    do {
        Open("\r\nSchmied");
        for (const std::size_t choice : order) {
            EXPECT_FALSE(CanStart());
            choices[choice](dialog, 1);
        }
        EXPECT_TRUE(CanStart());
    } while (std::next_permutation(order.begin(), order.end()));
    ChooseShopType(dialog, 0);
    EXPECT_FALSE(CanStart()) << "an empty type is none";
}

TEST_F(GeneratorDialog, ATickedBoxNeedsARegion) {
    OpenAndChoose();
    EXPECT_TRUE(CanStart());
    TickShopRegion(dialog, true);
    EXPECT_TRUE(dialog.cmbShopRegion.enabled);
    ChooseGeneratorPrices(dialog, 0);
    EXPECT_FALSE(CanStart());
    TickShopRegion(dialog, false);
    EXPECT_FALSE(CanStart()) << "not before the next choice in a list";
    ChooseGeneratorQuality(dialog, 2);
    EXPECT_TRUE(CanStart());
    TickShopRegion(dialog, true);
    ChooseRegion(1);
    EXPECT_TRUE(CanStart());
    TickShopRegion(dialog, false);
    EXPECT_TRUE(CanStart());
    EXPECT_FALSE(dialog.cmbShopRegion.enabled);
    EXPECT_EQ(dialog.cmbShopRegion.Text() + dialog.lblRegionen.caption, "ELElmental");
    ChooseRegion(0);
    EXPECT_EQ(dialog.lblRegionen.caption, "");
}

} // namespace
} // namespace emporium::test
