// Any bytes as a settings file: what it says of a section and key depends on nothing but the first
// line that tells it.
#include "Fuzz.h"

#include "generator/GeneratorConfig.h"
#include "text/Ansi.h"

#include <limits>
#include <set>

namespace emporium::fuzz {
namespace {

constexpr std::size_t MostNames = 12; // each section is asked for each key

void Collect(std::set<std::string>& names, std::string_view name) {
    if (names.size() < MostNames)
        names.emplace(name);
}

std::string Upper(std::string text) {
    for (char& c : text)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

void CheckValue(std::string_view text, const std::string& value) {
    Expect(value.size() <= 254, "a value has at most 254 characters");
    Expect(text.find(value) != text.npos, "a value stands in the file");
    Expect(value.find('\n') == value.npos, "a value is of one line");
}

// Whatever follows, the first section of a name counts, and in it the first line of a key.
void CheckFirst(const std::string& text, const std::string& section, const std::string& key) {
    const std::string name(Trim(key));
    if (name.empty() || name.front() == ';' || name.front() == '[')
        return;
    const IniFile settings("[" + section + "]\r\n" + key + "=erster\r\n" + key + "=2\r\n" + text);
    Expect(settings.Value(section, key) == "erster", "the first of two counts");
}

} // namespace
} // namespace emporium::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace emporium;
    using namespace emporium::fuzz;
    const std::string text(TextOf(data, size));
    std::set<std::string> sections, keys;
    for (const std::string& line : LinesOf(text)) {
        if (const auto head = line.find('[') + 1; head > 0)
            Collect(sections, line.substr(head, line.find(']', head) - head));
        Collect(keys, line.substr(0, line.find('=')));
    }
    const IniFile settings(text);
    const IniFile commented("; Ware1=x\r\n" + text);
    // The second head of a section, and all that stands below it, count no more.
    const IniFile repeated(text + "\r\n[q]\r\n[q]\r\n" + text);
    const IniFile grown(text + "\r\n[Ganz neuer Abschnitt]\r\n Ware1 = \"Seil\" \r\n");
    for (const std::string& section : sections) {
        for (const std::string& key : keys) {
            const std::string value = settings.Value(section, key);
            CheckValue(text, value);
            CheckFirst(text, section, key);
            Expect(settings.Value(" " + Upper(section), Upper(key) + " ") == value, "any case");
            Expect(commented.Value(section, key) == value, "a comment changes nothing");
            Expect(repeated.Value(section, key) == value, "the first of two counts");
            Expect(FoldCase(section).find("ganz neu") != std::string::npos ||
                       grown.Value(section, key) == value,
                   "a new section changes no other");
        }
        Expect(!ReadWareCount(settings, section) || !settings.Value(section, "WareCount").empty(),
               "no count from nothing");
    }
    return 0;
}
