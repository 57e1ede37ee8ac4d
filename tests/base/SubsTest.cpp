#include "base/Subs.h"
#include "base/Ansi.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace emporium::test {
namespace {

TEST(IniFile, ValuesAreFoundAsWindowsFindsThem) {
    const IniFile ini(
        "vorher=unerreichbar\r\n  [ Großer Krämer ] Rest = egal\r\n"
        "  Ware1 =\t Öle und Fette \t\r\n; Ware2=Kommentar\r\n  ;Ware2=auch\n"
        "Ware2=Seile;Taue # Netze\n#Ware3=kein Kommentar\r\nWare4=\"  innen  \"\r\n"
        "Ware5='a' und 'b'\r\nWare6=\"offen\r\nWare7='gemischt\"\r\nWare8=\"\r\n"
        "Ware9=\r\nWARE1=zweiter Schlüssel\r\nWare10=a=b\r\nohne Gleichheit\r\n"
        "[GROßER KRÄMER]\r\nWare11=zweiter Abschnitt\r\n[Ärmel]\nÜ=letzte Zeile"_ansi);
    const std::vector<std::pair<std::string_view, std::string_view>> values = {
        {" wARE1\t", "Öle und Fette"_ansi},
        {"Ware2", "Seile;Taue # Netze"},
        {"#Ware3", "kein Kommentar"},
        {"Ware3", ""},
        {"Ware4", "  innen  "},
        {"Ware5", "a' und 'b"},
        {"Ware6", "\"offen"},
        {"Ware7", "'gemischt\""},
        {"Ware8", "\""},
        {"Ware9", ""},
        {"Ware10", "a=b"},
        {"Ware11", ""},
        {"vorher", ""}};
    for (const auto& [key, value] : values)
        EXPECT_EQ(ini.Value(" gROßER kRÄMER"_ansi, key), value) << key;
    EXPECT_EQ(ini.Value("ärmel"_ansi, "ü"_ansi), "letzte Zeile");
    EXPECT_EQ(ini.Value("Großer Kramer"_ansi, "Ware1") + ini.Value("", "vorher"), "");
}

TEST(IniFile, AValueHasAtMost254CharactersAndAMissingFileHasNone) {
    ProgramFolder program;
    const std::string text(300, 'x');
    program.Write("Atlas/a.dat", "[a]\nb=" + text + "\nc=\"" + text.substr(0, 254) + "\"\n");
    const auto folder = program.folders.DataFolder / "Atlas";
    for (const char* key : {"b", "c"})
        EXPECT_EQ(ReadIniValue(SystemFiles(), folder / "a.dat", "a", key), text.substr(0, 254));
    EXPECT_EQ(ReadIniValue(SystemFiles(), folder / "fehlt.dat", "a", "b"), "");
    EXPECT_EQ(ReadIniValue(SystemFiles(), folder, "a", "b"), "");
}

TEST(FileExists, OnlyNormalFilesCount) {
    ProgramFolder program;
    for (const auto name : {"Kräuter.dat"_ansi, ".versteckt.txt"_ansi, "fest.dat"_ansi, "x"_ansi})
        program.Write(std::string("Atlas/").append(name), "");
    const auto folder = program.folders.DataFolder / "Atlas";
    std::filesystem::permissions(folder / "fest.dat", std::filesystem::perms::owner_read);
    std::filesystem::create_directory(folder / "Ordner.ini");
    for (const auto name : {"Kräuter.dat"_ansi, "fest.dat"_ansi, "*.dat"_ansi, "*"_ansi, "?"_ansi,
                            "Kr?uter.dat"_ansi, "K*u*r.*t"_ansi, "*ä*"_ansi, "fest.dat*"_ansi})
        EXPECT_TRUE(FileExists(folder / ToPath(name))) << name;
    for (const auto name :
         {"Kräuter.da"_ansi, "fehlt.dat"_ansi, "Ordner.ini"_ansi, "*.ini"_ansi,
          ".versteckt.txt"_ansi, "*.txt"_ansi, "Kr??uter.dat"_ansi, "??"_ansi, "K*u*r.*tt"_ansi,
          "*ö*"_ansi, "fest.dat?"_ansi, "fest.dat/a"_ansi, "fehlt/*"_ansi, ""_ansi})
        EXPECT_FALSE(FileExists(folder / ToPath(name))) << name;
}

std::vector<int> Throws(float clock, int sides, int count) {
    Dice dice([clock] { return clock; });
    std::vector<int> throws(static_cast<std::size_t>(count));
    for (int& result : throws)
        result = dice.RollDice(sides);
    return throws;
}

TEST(Dice, EveryFaceAndEveryPairOfFacesIsEquallyLikelyWithinOneTick) {
    constexpr int perPair = 1000;
    for (const float clock : {0.0F, 43210.5F, 86399.99F})
        for (const int sides : {2, 6, 20}) {
            const auto throws = Throws(clock, sides, sides * sides * perPair + 1);
            std::vector<int> pairs(static_cast<std::size_t>(sides * sides));
            for (std::size_t i = 1; i < throws.size(); ++i) {
                ASSERT_TRUE(throws[i] >= 1 && throws[i] <= sides) << throws[i];
                ++pairs[static_cast<std::size_t>((throws[i - 1] - 1) * sides + throws[i] - 1)];
            }
            for (const int count : pairs)
                EXPECT_NEAR(count, perPair, 5.5 * std::sqrt(perPair)) << clock << " " << sides;
        }
}

TEST(Dice, EveryThrowReadsTheClockAndStaysInItsRange) {
    EXPECT_NE(Throws(1.0F, 1000, 20), Throws(std::nextafter(1.0F, 2.0F), 1000, 20));
    int readings = 0;
    Dice dice([&readings] { return static_cast<float>(++readings); });
    for (const int sides : {1, 0, -5})
        EXPECT_EQ(dice.RollDice(sides), 1);
    EXPECT_EQ(readings, 3);
    for (const int result : Throws(7.0F, std::numeric_limits<std::int32_t>::max(), 1000))
        ASSERT_GE(result, 1);
}

} // namespace
} // namespace emporium::test
