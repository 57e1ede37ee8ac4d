#include "store/CategoryNames.h"

#include "base/Ansi.h"
#include "store/CategoryFiles.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

using Names = std::vector<std::string>;

// The names between the semicolons.
Names Split(std::string_view list) {
    Names names;
    for (std::size_t end = 0; end != list.npos; list.remove_prefix(end == list.npos ? 0 : end + 1))
        names.emplace_back(list.substr(0, end = list.find(';')));
    return names;
}

class CategoryNames : public testing::Test {
protected:
    CategoryNames() {
        for (const auto file : {"Emporium/Kleidung.dat"_ansi, "Emporium/Schläuche.dat"_ansi,
                                "Emporium/ItemKategorien.dat"_ansi})
            program.Write(file, "x\r\n");
    }

    std::string Refusal(std::string_view name) const {
        return CategoryNameRefusal(program.folders, {"Kleidung", std::string("Öllampen"_ansi)},
                                   name);
    }

    void ExpectRefused(const Names& names, std::string_view beginning) const {
        for (const std::string& name : names)
            EXPECT_TRUE(Refusal(name).starts_with(beginning)) << name << ": " << Refusal(name);
    }

    ProgramFolder program;
};

TEST_F(CategoryNames, TakenOnesAreRefused) {
    ExpectRefused(Split("Kleidung;Öllampen;Alles"_ansi), "Diese Kategorie existiert");
    ExpectRefused(Split("kleidung;KLEIDUNG;öLLAMPEN"_ansi), "Eine Kategorie, deren Name sich nur");
    ExpectRefused(Split("ItemKategorien;itemkategorien;ShopgeneratorConfig;SHOPGENERATORSHOPS;"
                        "EmporiumNahkampfwaffen;emporiumFernwaffen;EmporiumRÜSTUNGEN;Schläuche;"
                        "SCHLÄUCHE"_ansi),
                  "Im Ordner der Kategorien");
}

TEST_F(CategoryNames, OnesThatNoFileCanBearAreRefused) {
    Names names = Split("a/b;a\\b;/;..;.;../a;C:;a:b;a*;?a;\"a\";<a;a>;a|b;CON;con;Prn;AUX;nul.txt;"
                        "NUL.a.b;COM1;com9.x;COM¹;Lpt0;CONIN$;conout$;CON .x; a;a ;.a;a.; ;a\tb;"
                        "a\nb;a\x1F;\x7F"_ansi);
    names.emplace_back(101, 'a');
    names.emplace_back("a\0b", 3);
    // As many bytes as no Linux name can have, although each is one character.
    names.emplace_back(100, "€"_ansi[0]);
    ExpectRefused(names, "Diesen Namen kann keine Datei tragen");
}

TEST_F(CategoryNames, AllOthersMakeANewPlainFile) {
    Names names = Split("alles;Konrad;COM10;COM;LPT;CONTRA;Con1;a.b;a b;a..b;Kleidung2;"
                        "Kleidung.dat;Emporium;Nahkampf;5;-;Münzen & Maße (€)"_ansi);
    for (const std::string_view character : {"a"_ansi, "ü"_ansi})
        names.emplace_back(100, character[0]);
    names.emplace_back("\x81\x9D"); // the code page leaves them undefined
    for (const std::string& name : names) {
        EXPECT_EQ(Refusal(name), "") << name;
        EXPECT_EQ(program.Read("Emporium/" + name + ".dat"), "(absent)") << name;
        program.Write("Emporium/" + name + ".dat", name);
        EXPECT_EQ(ReadCategoryFile(SystemFiles(), program.folders, name).bytes, name);
        EXPECT_EQ(CategoryPath(program.folders, name).parent_path(),
                  program.folders.EmporiumFolder());
        EXPECT_NE(Refusal(name), "") << "its file stands now";
    }
}

} // namespace
} // namespace emporium::test
