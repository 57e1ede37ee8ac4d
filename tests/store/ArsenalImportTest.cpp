#include "store/ArsenalImport.h"

#include "base/Ansi.h"
#include "store/CategoryFiles.h"
#include "support/ProgramFolder.h"

#include <gtest/gtest.h>

namespace emporium::test {
namespace {

struct SourceForm {
    std::string_view category;
    std::size_t lines, description, price, unit;
};

constexpr SourceForm Forms[] = {{"Nahkampfwaffen", 28, 3, 10, 26},
                                {"Fernwaffen", 22, 3, 8, 20},
                                {"Rüstungen"_ansi, 19, 2, 8, 17}};
constexpr const SourceForm& Ranged = Forms[1];

// A source record of the name, with the line before it.
std::string Source(const SourceForm& form, std::string_view name,
                   std::string_view unit = "Silbertaler") {
    std::vector<std::string> lines(form.lines, "D|XX");
    lines[0] = name;
    lines[1] = "40";
    lines[form.description] = "Wie " + std::string(name);
    lines[form.price] = "15";
    lines[form.unit] = unit;
    lines.back() = "BO|GA|";
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

const std::string Heading = "Waffen\r\n";

class ArsenalImport : public testing::Test {
protected:
    void Set(std::string_view folder, std::string_view category, std::string_view bytes) const {
        program.Write(Name(folder, category), bytes);
    }

    std::string Get(std::string_view category) const {
        return program.Read(Name("Emporium", category));
    }

    void Import() {
        faults.clear();
        emporium::ImportArsenal(files, program.folders, faults);
    }

    static std::string Name(std::string_view folder, std::string_view category) {
        return std::string(folder).append("/").append(category).append(".dat");
    }

    ProgramFolder program;
    FileLayer files = SystemFiles();
    std::vector<std::string> faults;
};

TEST_F(ArsenalImport, FillsEmptyCategoriesAndAddsNothingASecondTime) {
    for (const SourceForm& form : Forms) {
        Set("Arsenal", form.category,
            Heading + Source(form, "Öx"_ansi) + Source(form, "Aal", "Pf"));
        Set("Emporium", form.category, "");
    }
    Import();
    for (const SourceForm& form : Forms)
        EXPECT_EQ(Get(form.category), Item("Öx"_ansi) + Item("Aal", "P")) << form.category;
    files.createNew = [](const auto&, auto&) {
        ADD_FAILURE() << "a write";
        return std::error_code();
    };
    Import();
    EXPECT_TRUE(faults.empty());
    EXPECT_TRUE(std::filesystem::is_empty(program.folders.TempFolder));
}

TEST_F(ArsenalImport, OnlyEverAdds) {
    const std::string axe = Source(Ranged, "Axt");
    const std::string raised = Lines({"Axt4", "1", "2D", "Meine", ""});
    const std::string axeLf = "Axt9\n\n1P\n\n\n";
    const std::string bogenLf = "Bogen1\n40\n15S\nWie Bogen\nBO|GA|\n";
    const struct {
        std::string what, source, before, added;
    } cases[] = {
        {"a heading only", "", raised, ""},
        {"the user's record stays", axe, raised, ""},
        {"a new one goes behind", Source(Ranged, "Bogen") + axe, raised, Item("Bogen")},
        {"case counts", Source(Ranged, "axt"), raised, Item("axt")},
        {"a longer name is another", Source(Ranged, "Axt4"), raised, Item("Axt4")},
        {"two of one name", axe + axe, "", Item("Axt") + Item("Axt")},
        {"a name among the other lines", Source(Ranged, "Meine"), raised, Item("Meine")},
        {"an unknown unit", Source(Ranged, "Pfeil", "taler") + axe, "", Item("Axt")},
        {"neither unit nor name", Source(Ranged, "Pfeil", "") + Source(Ranged, ""), "", ""},
        {"LF ends in the category", Source(Ranged, "Bogen") + axe, axeLf, bogenLf},
        {"no last line end in the category", Source(Ranged, "Bogen"), "Axt9\n\n1P\n\nBO|",
         "\n" + bogenLf},
        {"no last line end in the source", axe.substr(0, axe.size() - 2), "", Item("Axt")}};
    for (const auto& c : cases) {
        Set("Arsenal", Ranged.category, Heading + c.source);
        Set("Emporium", Ranged.category, c.before);
        Import();
        EXPECT_EQ(Get(Ranged.category), c.before + c.added) << c.what;
        EXPECT_TRUE(faults.empty()) << c.what;
    }
}

TEST_F(ArsenalImport, ARecordThatEndsEarlyIsLeftOut) {
    const std::string second = Source(Ranged, "Bogen");
    std::size_t cut = 0;
    for (std::size_t line = 0; line < Ranged.lines; ++line) {
        cut = second.find('\n', cut) + 1; // behind the separator, the name and so on
        for (const std::size_t bytes : {cut - 2, cut}) {
            Set("Arsenal", Ranged.category,
                Heading + Source(Ranged, "Axt") + second.substr(0, bytes));
            Set("Emporium", Ranged.category, "");
            Import();
            EXPECT_EQ(Get(Ranged.category), Item("Axt")) << "cut off behind " << line << " lines";
        }
    }
}

TEST_F(ArsenalImport, ACategoryTakesNoMoreThanAViewCanShow) {
    std::string before;
    for (int i = 0; i < MaxRows - 1; ++i)
        before += "Ding1\r\n\r\n1H\r\n\r\n\r\n";
    Set("Arsenal", Ranged.category, Heading + Source(Ranged, "Axt") + Source(Ranged, "Bogen"));
    Set("Emporium", Ranged.category, before);
    Import();
    EXPECT_TRUE(Get(Ranged.category) == before + Item("Axt"));
    EXPECT_EQ(faults.size(), 1U);
}

} // namespace
} // namespace emporium::test
