#include "store/ArsenalImport.h"

#include "store/CategoryFiles.h"
#include "support/MemoryDisk.h"
#include "text/Ansi.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

// A source record of the name, with the line before it.
std::string Source(std::string_view name, std::string_view unit = "Silbertaler") {
    std::vector<std::string> lines(22, "D|XX");
    lines[0] = name;
    lines[1] = "40";
    lines[3] = "Wie " + std::string(name);
    lines[8] = "15";
    lines[20] = unit;
    lines[21] = "BO|GA|";
    std::string text = "--\r\n";
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

// The record that it becomes.
std::string Item(std::string_view name, std::string_view unit = "S") {
    return Lines({std::string(name) + "1", "40", "15" + std::string(unit),
                  "Wie " + std::string(name), "BO|GA|"});
}

class ArsenalImport : public testing::Test {
protected:
    void Set(const std::string& source, const std::string& before) {
        disk.Write("Arsenal/Fernwaffen.dat", "Waffen\r\n" + source);
        disk.Write("Emporium/Fernwaffen.dat", before);
    }

    std::string Get() const { return disk.Read("Emporium/Fernwaffen.dat"); }

    void Import() {
        faults.clear();
        ImportArsenal(Disk{disk.Files(), disk.folders}, faults);
    }

    MemoryDisk disk;
    std::vector<std::string> faults;
};

TEST_F(ArsenalImport, OnlyEverAddsAndNothingASecondTime) {
    const std::string axe = Source("Axt");
    const std::string bow = Source("Bogen");
    const std::string raised = Lines({"Axt4", "1", "2D", "Meine", ""});
    const std::string axeLf = "Axt9\n\n1P\n\n\n";
    const std::string bogenLf = "Bogen1\n40\n15S\nWie Bogen\nBO|GA|\n";
    const struct {
        std::string what, source, before, added;
        std::string_view told = "";
    } cases[] = {
        {"a heading only", "", raised, ""},
        {"the user's record stays", axe, raised, ""},
        {"a new one goes behind", bow + axe, raised, Item("Bogen")},
        {"case counts", Source("axt"), raised, Item("axt")},
        {"a longer name is another", Source("Axt4"), raised, Item("Axt4")},
        {"the unit's first letter", Source("Öx"_ansi, "Pf"), "", Item("Öx"_ansi, "P")},
        {"without its last line", axe + bow.substr(0, bow.size() - 8), "", Item("Axt")},
        {"two of one name", axe + axe, "", Item("Axt") + Item("Axt")},
        {"a name among the other lines", Source("Meine"), raised, Item("Meine")},
        {"an unknown unit", Source("Pfeil", "taler"), "", "",
         "Arsenal, Fernwaffen.dat: Ohne Namen oder Währung, deshalb übergangen: 1 (Pfeil)."_ansi},
        {"neither unit nor name", Source("Pfeil", "") + Source("") + axe + Source("") + Source(""),
         "", Item("Axt"),
         "Arsenal, Fernwaffen.dat: Ohne Namen oder Währung, deshalb übergangen: 4 "
         "(Pfeil, ohne Namen, ohne Namen, ...)."_ansi},
        {"a category that is cut off", axe, "Rest1\r\n", "",
         "Fernwaffen.dat: Der letzte Datensatz ist nicht vollständig."_ansi},
        {"LF ends in the category", bow + axe, axeLf, bogenLf},
        {"no last line end in the category", bow, "Axt9\n\n1P\n\nBO|", "\n" + bogenLf},
        {"no last line end in the source", axe.substr(0, axe.size() - 2), "", Item("Axt")}};
    for (const auto& c : cases) {
        Set(c.source, c.before);
        Import();
        EXPECT_EQ(Get(), c.before + c.added) << c.what;
        const auto created = disk.nodes.size();
        Import();
        EXPECT_EQ(disk.nodes.size(), created) << c.what << ": written again";
        ASSERT_EQ(faults.size(), c.told.empty() ? 0U : 1U) << c.what;
        EXPECT_TRUE(c.told.empty() || faults[0].starts_with(c.told)) << faults[0];
    }
}

TEST_F(ArsenalImport, EachCategoryHasASourceOfItsOwnForm) {
    const struct {
        std::string file;
        std::size_t lines, description, price, unit;
    } forms[] = {{"Nahkampfwaffen.dat", 28, 3, 10, 26},
                 {"Fernwaffen.dat", 22, 3, 8, 20},
                 {std::string("Rüstungen.dat"_ansi), 19, 2, 8, 17}};
    for (const auto& form : forms) {
        const auto line = [](std::size_t n) { return "DSHP"[n % 4] + std::to_string(n); };
        std::string source = "Kopf\r\n--\r\n";
        for (std::size_t i = 0; i < form.lines; ++i)
            source += line(i) + "\r\n";
        disk.Write("Arsenal/" + form.file, source);
        disk.Write("Emporium/" + form.file, "");
        Import();
        EXPECT_EQ(disk.Read("Emporium/" + form.file),
                  Lines({line(0) + "1", line(1), line(form.price) + line(form.unit)[0],
                         line(form.description), line(form.lines - 1)}));
    }
}

TEST_F(ArsenalImport, ACategoryTakesNoMoreThanAViewCanShow) {
    std::string before;
    for (int i = 0; i < MaxRows - 1; ++i)
        before += "Ding1\r\n\r\n1H\r\n\r\n\r\n";
    for (const std::string& more : {std::string(), Source("Bogen")}) {
        Set(Source("Axt") + more, before);
        Import();
        EXPECT_TRUE(Get() == before + Item("Axt"));
        EXPECT_EQ(faults.empty(), more.empty());
    }
}

} // namespace
} // namespace emporium::test
