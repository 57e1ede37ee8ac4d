#include "base/Ansi.h"
#include "base/GermanNumber.h"
#include "base/GermanOrder.h"
#include "base/LineReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>
#include <utility>

namespace emporium::test {
namespace {

using Texts = std::vector<std::string_view>;

TEST(Ansi, EveryByteSurvivesTheWayThroughUtf8AndFoldsAsInWindows) {
    std::string all(256, '\0');
    std::iota(all.begin(), all.end(), '\0');
    EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
    EXPECT_EQ(FromPath(ToPath(all.substr(1))), all.substr(1));
    EXPECT_TRUE(ToUtf8("a\x80\x81\x9F\xA0\xFF") == u8"a\u20AC\u0081\u0178\u00A0ÿ");
    EXPECT_EQ(FromUtf8(u8"a→b𝄞c\u0080d€"), "a?b?c?d\x80");
    EXPECT_EQ(FoldCase("AZÀÄÖÜÞŠŒŽŸß×÷µƒ@[`{"_ansi), "azàäöüþšœžÿß×÷µƒ@[`{"_ansi);
}

TEST(LineReader, CrLfAndLfEndALineAlike) {
    const std::vector<std::pair<std::string_view, Texts>> cases = {{"", {}},
                                                                   {"a", {"a"}},
                                                                   {"a\r\n", {"a"}},
                                                                   {"a\nb", {"a", "b"}},
                                                                   {"\r\n", {""}},
                                                                   {"a\n\n", {"a", ""}},
                                                                   {"\r\na", {"", "a"}},
                                                                   {"a\rb\nc", {"a\rb", "c"}},
                                                                   {"a\r\r\n", {"a\r"}},
                                                                   {" a \n", {" a "}}};
    for (const auto& [text, expected] : cases) {
        LineReader lines(text);
        Texts read;
        for (std::string_view line; lines.Next(line);)
            read.push_back(line);
        EXPECT_EQ(read, expected) << text;
    }
}

TEST(GermanOrder, UmlautsStandWithTheirBaseLetters) {
    const Texts ordered = {"",           " Zelt",         "12D",         "2D",       "A",
                           "a",          "Ä"_ansi,        "ä"_ansi,      "Aal",      "Affe",
                           "Ähre"_ansi,  "AMT",           "Amt",         "amt",      "Apfel",
                           "Äpfel"_ansi, "Apfelbaum",     "Ofen",        "Öl"_ansi,  "Ölkanne"_ansi,
                           "PU",         "Strasse",       "Straße"_ansi, "Strassen", "SÜ"_ansi,
                           "TH",         "Übertopf"_ansi, "Ulme",        "Zelt"};
    for (std::size_t i = 0; i < ordered.size(); ++i)
        for (std::size_t j = 0; j < ordered.size(); ++j)
            EXPECT_EQ(GermanLess(ordered[i], ordered[j]), i < j) << ordered[i] << " " << ordered[j];
}

TEST(GermanOrder, TheOrderOfManyTextsIsStableInBothDirections) {
    std::mt19937 random(3);
    const std::string_view letters = "aAäÄsSß o"_ansi;
    std::vector<std::string> texts(400);
    for (std::string& text : texts)
        for (auto length = random() % 12; length > 0; --length)
            text += letters[random() % letters.size()];
    std::copy_n(texts.begin(), 50, texts.end() - 50);
    const auto textAt = [&texts](std::size_t i) { return std::string_view(texts[i]); };
    for (const bool descending : {false, true}) {
        std::vector<std::size_t> expected(texts.size());
        std::iota(expected.begin(), expected.end(), 0U);
        std::stable_sort(expected.begin(), expected.end(), [&](std::size_t a, std::size_t b) {
            return GermanLess(textAt(descending ? b : a), textAt(descending ? a : b));
        });
        const auto order = GermanOrderOf(texts.size(), descending, textAt);
        EXPECT_TRUE(std::equal(order.begin(), order.end(), expected.begin(), expected.end()));
    }
}

TEST(GermanNumber, ACommaSeparatesDecimalsAndPointsCountForNothing) {
    const std::vector<std::pair<std::string, double>> numbers = {
        {"012", 12},
        {" \t12,5 ", 12.5},
        {"1.234,5", 1234.5},
        {"0,1", 0.1},
        {",5", 0.5},
        {"5,", 5},
        {"-3,25", -3.25},
        {"1.2.3.", 123},
        {std::string(400, '9'), std::numeric_limits<double>::infinity()},
        {"-," + std::string(400, '0') + "1", 0}};
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(ReadGermanNumber(text), number) << text;
    for (const char* text :
         {"",    " ",   "-",   ",",   ".",   "-,",  "1,2,3", "1,2.3", "12a",   "a12",
          "12D", "1e5", "0x1", "inf", "nan", "- 3", "3-",    "+-3",   "1 000", "\xBD"})
        EXPECT_EQ(ReadGermanNumber(text), std::nullopt) << text;
}

TEST(GermanNumber, HalvesGoToTheEvenNumberAndLimitsHold) {
    const std::vector<std::pair<double, int>> cases = {
        {0.5, 0},       {1.5, 2},           {2.5, 2},         {2.5000001, 3},   {2.4999999, 2},
        {-1.5, -2},     {-2.5, -2},         {32766.5, 32766}, {32766.6, 32767}, {32768, 32767},
        {1e300, 32767}, {-32767.4, -32767}, {-32769, -32768}, {-1e300, -32768}};
    for (const auto& [number, whole] : cases)
        EXPECT_EQ(RoundToInt16(number), whole) << number;
}

} // namespace
} // namespace emporium::test
