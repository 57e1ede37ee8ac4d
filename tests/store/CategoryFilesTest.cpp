#include "store/CategoryFiles.h"

#include "files/FileFailure.h"
#include "store/CategoryFaults.h"
#include "store/CategoryList.h"
#include "store/CategoryRefusal.h"
#include "support/ProgramFolder.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

using Names = std::vector<std::string>;

TEST(CategoryFiles, WhatIsNotAWholeRecordIsToldAndKeepsTheFileFromBeingWritten) {
    const struct {
        std::string bytes; // with ; for a line end
        std::size_t records;
        bool canBeWritten;
        std::size_t faults;
    } cases[] = {{"Seil1;80;3S;lang;BO|;Öse 22;;1P;;", 1, false, 1},
                 {";80;3S;lang;BO|;Öse 22;;1P;;;", 2, true, 1},
                 {"Seil1;80;;lang;BO|;Öse 22;;;;;", 2, true, 1},
                 {"Seil;80;3S;lang;BO|;Öse 22;;1;;;", 2, true, 1},
                 {"Seil0;80;3X;lang;BO|;Öse 29;;1p;;;", 2, true, 0},
                 {"Seil1;80;;lang;BO|;Rest", 1, false, 2}};
    const ProgramFolder program;
    for (const auto& c : cases)
        for (const std::string_view end : {"\r\n", "\n"}) {
            std::string bytes = c.bytes;
            for (auto at = bytes.find(';'); at != bytes.npos; at = bytes.find(';'))
                bytes.replace(at, 1, end);
            program.Write("Emporium/ Seile..dat", bytes); // such a name can't be given any more
            const CategoryFile file =
                ReadCategoryFile(Disk{SystemFiles(), program.folders}, " Seile.");
            EXPECT_EQ(file.records.size(), c.records) << c.bytes;
            EXPECT_EQ(file.CanBeWritten(), c.canBeWritten) << c.bytes;
            EXPECT_EQ(CategoryFaults("Seile", file).size(), c.faults) << c.bytes;
        }
}

TEST(CategoryFiles, AListShowsAllItsNamesAndIsOnlyChangedIfItsNumberIsTheirs) {
    const struct {
        std::string bytes;
        bool isSound;
    } cases[] = {{" 2 \r\nSeile\r\nTaue\r\n", true},
                 {"2\nAlles\nSeile\nTaue", true},
                 {" 2 \r\nSeile\r\nTaue\r\n\r\nSeile\r\n", true},
                 {"3\r\nSeile\r\nTaue", false},
                 {"1\r\nSeile\r\nTaue\r\n", true},
                 {"Seile\r\nTaue\r\n", false},
                 {"\r\nSeile\r\nTaue\r\n", false}};
    const ProgramFolder program;
    const auto read = [&] { return ReadCategoryNames(Disk{SystemFiles(), program.folders}); };
    EXPECT_NE(CategoryListFault(read()), "") << "no list";
    program.Write("Emporium/ItemKategorien.dat", "");
    EXPECT_NE(CategoryListFault(read()), "") << "an empty list";
    for (const auto& c : cases) {
        program.Write("Emporium/ItemKategorien.dat", c.bytes);
        EXPECT_EQ(CategoryListFault(read()).empty(), c.isSound) << c.bytes;
        EXPECT_EQ(read().names, (Names{"Seile", "Taue"})) << c.bytes;
    }
}

// The names between the semicolons.
Names Split(std::string_view list) {
    Names names;
    for (std::size_t end = 0; end != list.npos; list.remove_prefix(end == list.npos ? 0 : end + 1))
        names.emplace_back(list.substr(0, end = list.find(';')));
    return names;
}

TEST(CategoryNames, NamesThatAreTakenOrThatNoFileCanBearAreRefused) {
    const ProgramFolder program;
    for (const auto file : {"Emporium/Kleidung.dat"_ansi, "Emporium/Schläuche.dat"_ansi})
        program.Write(file, "x\r\n");
    const auto refusal = [&](std::string_view name) {
        return CategoryNameRefusal(Disk{SystemFiles(), program.folders},
                                   {"Kleidung", std::string("Öllampen"_ansi)}, name);
    };
    Names impossible =
        Split("a/b;a\\b;/;..;.;../a;C:;a:b;a*;?a;\"a\";<a;a>;a|b;CON;con;Prn;AUX;nul.txt;"
              "NUL.a.b;COM1;com9.x;COM¹;Lpt0;CONIN$;conout$;CON .x; a;a ;.a;a.; ;a\tb;"
              "a\nb;a\x1F;\x7F"_ansi);
    impossible.emplace_back(101, 'a');
    impossible.emplace_back("a\0b", 3);
    const std::pair<std::string_view, Names> refused[] = {
        {"Diese Kategorie existiert", Split("Kleidung;Öllampen;Alles"_ansi)},
        {"Eine Kategorie, deren Name sich nur", Split("kleidung;KLEIDUNG;öLLAMPEN"_ansi)},
        {"Im Ordner der Kategorien",
         Split("ItemKategorien;itemkategorien;ShopgeneratorConfig;SHOPGENERATORSHOPS;"
               "EmporiumNahkampfwaffen;emporiumFernwaffen;EmporiumRÜSTUNGEN;Schläuche;"
               "SCHLÄUCHE"_ansi)},
        // As many bytes as no Linux name can have, although each is one character.
        {"Dieser Name ist als Dateiname zu lang", {std::string(100, "€"_ansi[0])}},
        {"Diesen Namen kann keine Datei tragen", impossible}};
    for (const auto& [beginning, names] : refused)
        for (const std::string& name : names)
            EXPECT_TRUE(refusal(name).starts_with(beginning)) << name << ": " << refusal(name);

    Names good = Split("alles;Konrad;COM10;COM;LPT;CONTRA;Con1;a.b;a b;a..b;Kleidung2;"
                       "Kleidung.dat;Emporium;Nahkampf;5;-;Münzen & Maße (€)"_ansi);
    for (const std::string_view character : {"a"_ansi, "ü"_ansi})
        good.emplace_back(100, character[0]);
    good.emplace_back("\x81\x9D"); // the code page leaves them undefined
    for (const std::string& name : good) {
        EXPECT_EQ(refusal(name), "") << name;
        program.Write("Emporium/" + name + ".dat", name);
        EXPECT_EQ(*ReadCategoryFile(Disk{SystemFiles(), program.folders}, name).bytes, name);
        EXPECT_NE(refusal(name), "") << "its file stands now";
    }
}

TEST(FaultsText, ShowsTwelveAndCountsTheOthers) {
    std::vector<std::string> faults(12, "x");
    const std::string twelve = FaultsText(faults);
    EXPECT_EQ(twelve, "x\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx\nx");
    faults.resize(14);
    EXPECT_EQ(FaultsText(faults), twelve + "\n... weitere Meldungen: 2.");
}

} // namespace
} // namespace emporium::test
