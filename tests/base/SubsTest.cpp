#include "base/Subs.h"
#include "base/Dice.h"
#include "base/IniFile.h"
#include "support/ProgramFolder.h"
#include "text/Ansi.h"
#include "text/GermanNumber.h"
#include "text/GermanOrder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>

namespace emporium::test {
namespace {

TEST(IniFile, ValuesAreFoundAsWindowsFindsThem) {
    const auto text =
        "vorher=unerreichbar\r\n  [ Großer Krämer ] Rest = egal\r\n"
        "  Ware1 =\t Öle und Fette \t\r\n; Ware2=Kommentar\r\n  ;Ware2=auch\n"
        "Ware2=Seile;Taue # Netze\n#Ware3=kein Kommentar\r\nWare4=\"  innen  \"\r\n"
        "Ware5='a' und 'b'\r\nWare6=\"offen\r\nWare7='gemischt\"\r\nWare8=\"\r\n"
        "Ware9=\"\"\r\nWARE1=zweiter Schlüssel\r\n[ Großer Krämer\r\nWare10=a=b\r\n"
        "ohne Gleichheit\r\n[GROßER KRÄMER]\r\nWare11=zweiter Abschnitt\r\n[Ärmel]\nÜ=letzte Zeile"_ansi;
    const std::pair<std::string_view, std::string_view> values[] = {
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
        {"ohne Gleichheit", ""},
        {"vorher", ""}};
    const auto section = " gROßER kRÄMER"_ansi;
    for (const auto& [key, value] : values) {
        EXPECT_EQ(IniValue(text, section, key), value) << key;
        EXPECT_EQ(IniSection(text, section).Value(key), value) << key;
    }
    EXPECT_EQ(IniValue(text, "ärmel"_ansi, "ü"_ansi), "letzte Zeile");
    const std::string longest(254, 'x');
    EXPECT_EQ(IniValue("[a]\nb=" + longest + "x", "a", "b"), longest);
}

TEST(FileExists, OnlyNormalFilesCount) {
    ProgramFolder program;
    for (const auto name : {"Kräuter.dat"_ansi, ".versteckt.txt"_ansi, "x"_ansi})
        program.Write(std::string("Atlas/").append(name), "");
    const auto folder = program.folders.DataFolder / "Atlas";
    std::filesystem::create_directory(folder / "Ordner.ini");
    for (const auto name :
         {"Kräuter.dat"_ansi, "*.dat"_ansi, "*"_ansi, "?"_ansi, "Kr?uter.dat"_ansi, "K*u*r.*t"_ansi,
          "*ä*"_ansi, "x*"_ansi, "*r.dat"_ansi})
        EXPECT_TRUE(FileExists(SystemFiles(), folder / ToPath(name))) << name;
    for (const auto name :
         {"Kräuter.da"_ansi, "Ordner.ini"_ansi, "*.ini"_ansi, ".versteckt.txt"_ansi, "*.txt"_ansi,
          "Kr??uter.dat"_ansi, "??"_ansi, "K*u*r.*tt"_ansi, "*ö*"_ansi, "*rx.dat"_ansi, "x?"_ansi,
          "x/a"_ansi, "fehlt/*"_ansi, ""_ansi})
        EXPECT_FALSE(FileExists(SystemFiles(), folder / ToPath(name))) << name;
}

TEST(Dice, EveryFaceAndEveryPairOfFacesIsEquallyLikelyWithinOneTick) {
    constexpr int perPair = 1000;
    for (const float clock : {0.0F, 43210.5F, 86399.99F})
        for (const int sides : {2, 6, 20}) {
            Dice dice([clock] { return clock; });
            std::vector<int> pairs(static_cast<std::size_t>(sides * sides));
            int before = dice.RollDice(sides);
            for (int i = 0; i < sides * sides * perPair; ++i) {
                const int face = dice.RollDice(sides);
                ASSERT_TRUE(face >= 1 && face <= sides) << face;
                ++pairs[static_cast<std::size_t>((before - 1) * sides + face - 1)];
                before = face;
            }
            for (const int count : pairs)
                EXPECT_NEAR(count, perPair, 5.5 * std::sqrt(perPair)) << clock << " " << sides;
            for (const int odd : {1, 0, -5})
                EXPECT_EQ(dice.RollDice(odd), 1);
        }
}

TEST(Ansi, EveryByteSurvivesTheWayThroughUtf8AndFoldsAsInWindows) {
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
    EXPECT_EQ(FromPath(ToPath(all.substr(1))), all.substr(1));
    EXPECT_TRUE(ToUtf8("a\x80\x81\x9F\xA0\xFF") == u8"a\u20AC\u0081\u0178\u00A0ÿ");
    EXPECT_EQ(FromUtf8(u8"a→b𝄞c\u0080d€"), "a?b?c?d\x80");
    EXPECT_EQ(FoldCase("AZÀÄÖÜÞŠŒŽŸß×÷µƒ@[`{"_ansi), "azàäöüþšœžÿß×÷µƒ@[`{"_ansi);
}

TEST(GermanOrder, UmlautsStandWithTheirBaseLetters) {
    const std::vector<std::string_view> ordered = {
        "",           " Zelt",         "12D",         "2D",       "A",
        "a",          "Ä"_ansi,        "ä"_ansi,      "Aal",      "Affe",
        "Ähre"_ansi,  "AMT",           "Amt",         "amt",      "Apfel",
        "Äpfel"_ansi, "Apfelbaum",     "Ofen",        "Öl"_ansi,  "Ölkanne"_ansi,
        "PU",         "Strasse",       "Straße"_ansi, "Strassen", "SÜ"_ansi,
        "TH",         "Übertopf"_ansi, "Ulme",        "Zelt"};
    for (std::size_t i = 0; i < ordered.size(); ++i)
        for (std::size_t j = 0; j < ordered.size(); ++j)
            EXPECT_EQ(GermanLess(ordered[i], ordered[j]), i < j) << ordered[i] << " " << ordered[j];
}

TEST(GermanNumber, ACommaSeparatesDecimalsAndPointsCountForNothing) {
    const std::pair<std::string, double> numbers[] = {
        {"012", 12},         {" \t12,5 ", 12.5},
        {"1.234,5", 1234.5}, {",5", 0.5},
        {"5,", 5},           {"-3,25", -3.25},
        {"1.2.3.", 123},     {std::string(400, '9'), std::numeric_limits<double>::infinity()}};
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(ReadGermanNumber(text), number) << text;
    for (const char* text :
         {"",    " ",   "-",   ",",   ".",   "-,",  "1,2,3", "1,2.3", "12a",   "a12",
          "12D", "1e5", "0x1", "inf", "nan", "- 3", "3-",    "+-3",   "1 000", "\xBD"})
        EXPECT_EQ(ReadGermanNumber(text), std::nullopt) << text;
    const std::pair<double, int> rounded[] = {
        {0.5, 0},       {1.5, 2},           {2.5, 2},         {2.5000001, 3},   {2.4999999, 2},
        {-1.5, -2},     {-2.5, -2},         {32766.5, 32766}, {32766.6, 32767}, {32768, 32767},
        {1e300, 32767}, {-32767.4, -32767}, {-32769, -32768}, {-1e300, -32768}};
    for (const auto& [number, whole] : rounded)
        EXPECT_EQ(RoundToInt16(number), whole) << number;
}

} // namespace
} // namespace emporium::test
