#include "names/GenNameSub.h"

#include "text/Ansi.h"
#include "text/LineReader.h"

namespace emporium {

namespace {

constexpr std::string_view Male = "Männlich"_ansi;
constexpr std::string_view Female = "Weiblich";

std::string DrawFrom(NameLists& lists, std::string_view race, std::string_view list) {
    return lists.DrawName(std::string(race).append(list).append(".dat"));
}

std::string WithoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string WithoutOuterBlanks(std::string text) {
    text = WithoutTrailingBlanks(std::move(text));
    text.erase(0, text.find_first_not_of(' '));
    return text;
}

// What follows the first name.
std::string Surname(NameLists& lists, std::string_view race, bool male) {
    if (race == "Zwerge")
        return (male ? ", Sohn des " : ", Tochter des ") + DrawFrom(lists, race, Male);
    if (race == "Thorwaler") {
        const std::string parent = DrawFrom(lists, race, lists.Throw(2) == 1 ? Male : Female);
        return " " + parent + (male ? "son" : "sdotter");
    }
    if (race == "Tulamiden")
        return (male ? " ben " : " saba ") + DrawFrom(lists, race, Male);
    if (race == "Elfen") {
        const std::string part1 = DrawFrom(lists, race, "Nachname1");
        return " " + part1 + DrawFrom(lists, race, "Nachname2");
    }
    return " " + WithoutOuterBlanks(DrawFrom(lists, race, "Nachname"));
}

} // namespace

NameLists::NameLists(const Disk& disk, const Die& die) : disk_(disk), die_(die) {}

std::string NameLists::DrawName(std::string_view list) {
    const auto file = disk_.folders.DataFolder / "Borough" / ToPath(list);
    const FileText text = disk_.files.read(file, LargestList);
    std::string_view name;
    std::int32_t count = 0;
    for (LineReader lines(text.bytes); lines.Next(name);)
        ++count;
    if (count == 0) {
        if (!failure_)
            failure_ = FileFailure{file, ReasonOf(text)};
        return {};
    }
    LineReader lines(text.bytes);
    for (std::int32_t k = Throw(count); k > 0; --k)
        lines.Next(name);
    return std::string(name);
}

std::string GenName(NameLists& lists, std::string_view race, std::string& sex) {
    if (race == "Mohas")
        return lists.DrawName("Mohas.dat");
    if (sex.empty() || sex == "Zufall")
        sex = lists.Throw(2) == 1 ? Male : Female;
    const std::string first = DrawFrom(lists, race, sex);
    if (race == "Nivesen")
        return first + " von " + DrawFrom(lists, race, Male) + "s Stamm";
    return WithoutTrailingBlanks(first) + Surname(lists, race, sex == Male);
}

} // namespace emporium
