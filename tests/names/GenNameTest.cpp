#include "names/GenNameSub.h"
#include "shopeditor/ShopFields.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPlatform.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

// Lists whose lines tell race, list and number, and whose lengths differ: "ZwM3" is line 3 of the 3
// male names of "Zwerge".
class GenNames : public testing::Test {
protected:
    GenNames() {
        WriteList("Mohas", "Mo", 8);
        for (const std::string race : {"Nivesen", "Zwerge", "Thorwaler", "Tulamiden", "Elfen",
                                       "Bornland", "Gareth", "Norbarden"}) {
            const std::string start = race.substr(0, 2);
            WriteList(race + std::string("Männlich"_ansi), start + "M", 3);
            WriteList(race + "Weiblich", start + "W", 4);
            WriteList(race + "Nachname", start + "N", 5);
        }
        WriteList("ElfenNachname1", "ElA", 6);
        WriteList("ElfenNachname2", "ElB", 7);
    }

    void WriteList(const std::string& name, const std::string& start, int count) const {
        std::string text;
        for (int i = 1; i <= count; ++i)
            text += start + std::to_string(i) + "\r\n";
        program.Write("Borough/" + name + ".dat", text);
    }

    std::string Draw(std::string_view race, const std::vector<int>& throws, std::string& sex) {
        script.Throw(throws);
        script.sides.clear();
        NameLists lists(script.platform.disk, script.platform.RollDice);
        return GenName(lists, race, sex);
    }

    ProgramFolder program;
    ScriptedPlatform script{program.folders};
    const std::string male{"Männlich"_ansi};
};

TEST_F(GenNames, EveryRaceThrowsInItsOrderAndJoinsItsOwnWay) {
    const struct {
        std::string race;
        std::vector<int> throws, sides;
        std::string_view name;
    } cases[] = {{"Mohas", {8}, {8}, "Mo8"},
                 {"Nivesen", {1, 2, 3}, {2, 3, 3}, "NiM2 von NiM3s Stamm"},
                 {"Nivesen", {2, 4, 1}, {2, 4, 3}, "NiW4 von NiM1s Stamm"},
                 {"Zwerge", {1, 2, 3}, {2, 3, 3}, "ZwM2, Sohn des ZwM3"},
                 {"Zwerge", {2, 4, 1}, {2, 4, 3}, "ZwW4, Tochter des ZwM1"},
                 {"Thorwaler", {1, 1, 2, 4}, {2, 3, 2, 4}, "ThM1 ThW4son"},
                 {"Thorwaler", {2, 3, 1, 2}, {2, 4, 2, 3}, "ThW3 ThM2sdotter"},
                 {"Tulamiden", {1, 3, 2}, {2, 3, 3}, "TuM3 ben TuM2"},
                 {"Tulamiden", {2, 4, 2}, {2, 4, 3}, "TuW4 saba TuM2"},
                 {"Elfen", {1, 3, 6, 7}, {2, 3, 6, 7}, "ElM3 ElA6ElB7"},
                 {"Elfen", {2, 4, 1, 2}, {2, 4, 6, 7}, "ElW4 ElA1ElB2"},
                 {"Bornland", {1, 3, 5}, {2, 3, 5}, "BoM3 BoN5"},
                 {"Gareth", {2, 4, 1}, {2, 4, 5}, "GaW4 GaN1"},
                 {"Norbarden", {1, 1, 1}, {2, 3, 5}, "NoM1 NoN1"}};
    for (const auto& c : cases) {
        std::string sex;
        EXPECT_EQ(Draw(c.race, c.throws, sex), c.name);
        EXPECT_EQ(script.sides, c.sides) << c.name;
        EXPECT_EQ(sex, c.race == "Mohas" ? "" : c.throws[0] == 1 ? male : "Weiblich") << c.name;
    }
}

TEST_F(GenNames, BlanksGoOnlyWhereTheCustomSaysSoAndAGivenSexIsNotThrownFor) {
    std::string sex = male;
    for (const std::string race : {"Gareth", "Zwerge", "Thorwaler", "Nivesen", "Elfen"})
        program.Write("Borough/" + race + male + ".dat", " Ada\t  \r\n");
    program.Write("Borough/GarethNachname.dat", "   Berg  \r\n\nTal");
    program.Write("Borough/ElfenNachname1.dat", " A ");
    program.Write("Borough/ElfenNachname2.dat", " B ");
    EXPECT_EQ(Draw("Gareth", {1, 1}, sex), " Ada\t Berg");
    EXPECT_EQ(Draw("Gareth", {1, 2}, sex), " Ada\t ") << "an empty line is a name";
    EXPECT_EQ(Draw("Zwerge", {1, 1}, sex), " Ada\t, Sohn des  Ada\t  ");
    EXPECT_EQ(Draw("Thorwaler", {1, 1, 1}, sex), " Ada\t  Ada\t  son");
    EXPECT_EQ(Draw("Nivesen", {1, 1}, sex), " Ada\t   von  Ada\t  s Stamm");
    EXPECT_EQ(Draw("Elfen", {1, 1, 1}, sex), " Ada\t  A  B ");
}

TEST_F(GenNames, AnOwnerIsDrawnForTheChosenRaceAndAMissingListTold) {
    ShopEditor shop;
    ChooseRace(shop, 3);
    EXPECT_TRUE(shop.cmdGenName.enabled);
    script.Throw({8});
    DrawOwnerName(shop, script.platform);
    WriteList("Mohas", "", 0);
    script.ExpectMessage("Es konnte kein Name gezogen werden");
    DrawOwnerName(shop, script.platform);
    EXPECT_EQ(shop.txtBesitzerName.text, "Mo8");
}

} // namespace
} // namespace emporium::test
