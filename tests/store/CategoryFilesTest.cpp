#include "store/CategoryFiles.h"

#include "base/Ansi.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

const std::string Two = Lines({"Seil1", "80", "3S", "Zehn Schritt", "BO|GA|", // first record
                               "Öse 22"_ansi, "", "1P", "", ""});

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

TEST(CategoryFiles, WhatIsNotAWholeRecordIsToldAndKeepsTheFileFromBeingWritten) {
    const struct {
        std::string what, bytes;
        std::size_t records;
        bool canBeWritten;
        std::size_t faults;
    } cases[] = {
        {"empty", "", 0, true, 0},
        {"two records", Two, 2, true, 0},
        {"LF ends", Replaced(Two, "\r\n", "\n"), 2, true, 0},
        {"no last line end", Replaced(Two, "\r\n1P\r\n\r\n\r\n", "\r\n1P\r\nd\r\nWA|"), 2, true, 0},
        {"cut off behind the fourth line", Two.substr(0, Two.size() - 2), 1, false, 1},
        {"cut off within the first line", "Sei", 0, false, 1},
        {"a line too many", Two + "\r\n", 2, false, 1},
        {"empty name line", Replaced(Two, "Seil1", ""), 2, true, 1},
        {"empty price lines", Replaced(Replaced(Two, "3S", ""), "1P", ""), 2, true, 1},
        {"no price, and cut off", Replaced(Two, "3S", "") + "Rest", 2, false, 2},
    };
    const ProgramFolder program;
    for (const auto& c : cases) {
        program.Write("Emporium/Seile.dat", c.bytes);
        const CategoryFile file = ReadCategoryFile(SystemFiles(), program.folders, "Seile");
        EXPECT_EQ(file.records.size(), c.records) << c.what;
        EXPECT_EQ(file.CanBeWritten(), c.canBeWritten) << c.what;
        EXPECT_EQ(file.bytes, c.bytes);
        const auto faults = CategoryFaults("Seile", file);
        EXPECT_EQ(faults.size(), c.faults) << c.what;
        for (const std::string& fault : faults)
            EXPECT_TRUE(fault.starts_with("Seile.dat: ")) << fault;
    }
}

TEST(CategoryFiles, RecordsAreAddedBehindWhatStandsByteForByte) {
    const ProgramFolder program;
    const std::string lf = Replaced(Two, "\r\n", "\n") + "a1\n\n1P\n\nBO|";
    program.Write("Emporium/Seile.dat", lf);
    const CategoryFile file = ReadCategoryFile(SystemFiles(), program.folders, "Seile");
    ASSERT_EQ(file.records.size(), 3U);
    EXPECT_EQ(WithRecords({}, {file.records[0], file.records[1]}), Two) << "no LF in a record";
    EXPECT_EQ(WithRecords(file, {file.records[0], file.records[1]}), lf + "\r\n" + Two);
}

TEST(CategoryFiles, AbsentAndUnreadableAreNotEmpty) {
    const ProgramFolder program;
    std::filesystem::create_directory(program.folders.EmporiumFolder() / "Ordner.dat");
    for (const std::string_view name : {"Ordner", "../Emporium/Ordner", "CON", ""}) {
        const CategoryFile file = ReadCategoryFile(SystemFiles(), program.folders, name);
        EXPECT_EQ(file.state, FileText::State::Unreadable) << name;
        EXPECT_FALSE(file.CanBeWritten()) << name;
        EXPECT_EQ(CategoryFaults(name, file).size(), 1U) << name;
    }
    const CategoryFile absent = ReadCategoryFile(SystemFiles(), program.folders, "Fehlt");
    EXPECT_TRUE(absent.CanBeWritten());
    EXPECT_EQ(CategoryFaults("Fehlt", absent),
              std::vector<std::string>{"Fehlt.dat: Die Datei fehlt."});
}

TEST(CategoryFiles, TheNamesOfTheListCountAndNotItsNumber) {
    const ProgramFolder program;
    const std::vector<std::string> names = {"Seile", std::string("Öle"_ansi)};
    const std::string whole = Lines({" 2 ", "Seile", "Öle"_ansi});
    for (const std::string& bytes :
         {whole, Replaced(whole, " 2 ", "32768"), Replaced(whole, " 2 ", "zwei"),
          Replaced(whole, " 2 ", ""), Replaced(whole, "\r\n", "\n"),
          whole.substr(0, whole.size() - 2), whole + Lines({"", "Seile", "Alles"})}) {
        program.Write("Emporium/ItemKategorien.dat", bytes);
        const CategoryList list = ReadCategoryNames(SystemFiles(), program.folders);
        EXPECT_EQ(list.names, names) << bytes;
        EXPECT_EQ(CategoryListText(list.names), whole);
    }
    std::filesystem::remove(CategoryListPath(program.folders));
    const CategoryList list = ReadCategoryNames(SystemFiles(), program.folders);
    EXPECT_EQ(list.state, FileText::State::Absent);
    EXPECT_TRUE(list.reason) << "a list that is absent must not be told as an empty one";
}

TEST(CategoryFiles, ABoxTellsAHandfulOfFaultsAndCountsTheRest) {
    std::vector<std::string> faults(12, "fault");
    EXPECT_EQ(FaultsText(faults).find("weitere"), std::string::npos);
    faults.resize(14, "unseen");
    const std::string text = FaultsText(faults);
    EXPECT_TRUE(text.ends_with("... und 2 weitere Meldungen.")) << text;
    EXPECT_EQ(text.find("unseen"), std::string::npos);
}

} // namespace
} // namespace emporium::test
